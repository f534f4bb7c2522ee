#include <memory>

#include "bench/growth/Case.h"
#include "cli/TextBlocks.h"
#include "entries/CifBeginning.h"
#include "entries/CodedText.h"
#include "entries/EntryReader.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/colliding_names.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NormalisedString.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"

namespace {

Case searched(const std::string& name, unsigned int size,
              std::function<THandle<TextSearch>()> make_search,
              std::function<std::string(unsigned int)> make_term,
              std::function<std::string(unsigned int)> make_text) {
    return {"search " + name, size, [=](unsigned int n) -> Operation {
                const THandle<TextSearch> search = make_search();
                search->set_search_term(make_term(n));
                return [search, text = make_text(n)] {
                    std::vector<StringSlice> slices;
                    search->search(text, slices);
                };
            }};
}

using Effort = CommonSubstringFinderAdapter::Effort;

template <Effort effort>
THandle<TextSearch> substrings_with() {
    return make_handle<CommonSubstringFinderAdapter>(StringNormalisationPolicy(0, ""), 3U, "",
                                                     effort);
}

constexpr auto substrings = substrings_with<Effort::any>;
constexpr auto common_runs = substrings_with<Effort::linear>;

THandle<TextSearch> lines() {
    return make_handle<MultipleLineTextComparison>(make_handle<EntireTextComparison>());
}

template <class Search, class... Arguments>
std::function<THandle<TextSearch>()> made(Arguments... arguments) {
    return [=] { return make_handle<Search>(arguments...); };
}

auto units(const std::string& unit, const std::string& end = "") {
    return [=](unsigned int n) { return repeated(unit, n) + end; };
}

auto numbers(const std::string& unit, unsigned int factor = 1) {
    return [=](unsigned int n) { return numbered(unit, n, factor); };
}

/// Names that one hash value would hold, each between `begin` and `end`.
auto colliding(const std::string& begin, const std::string& end) {
    return [=](unsigned int n) {
        std::string text;
        for (const std::string& name : colliding_names(n)) text += begin + name + end;
        return text;
    };
}

Case normalised() {
    return {"normalise and map back", 8000, [](unsigned int n) -> Operation {
                return [text = repeated("a -B", n)] {
                    const NormalisedString normal(StringNormalisationPolicy(0x0F, ""), text);
                    normal.denormalise_slice(StringSlice(0, 1));
                };
            }};
}

/// What reads bytes, on some of them.
Case read(const std::string& name, unsigned int size,
          std::function<std::string(unsigned int)> make_bytes,
          std::function<void(const std::string& bytes)> read_bytes) {
    return {"read " + name, size, [=](unsigned int n) -> Operation {
                return [=, bytes = make_bytes(n)] { read_bytes(bytes); };
            }};
}

void read_blocks(const std::string& bytes) {
    const MemoryFile file(bytes);
    TextBlocks blocks(file.path(), '\n');
    for (TextBlock block; blocks.next(block);) continue;
}

void read_entries(const std::string& bytes) {
    const EntryReader reader(bytes);
    for (std::size_t i = 0; i < reader.size(); ++i) static_cast<void>(reader[i]);
}

/// One block of those bytes.
void read_block(const std::string& bytes) { read_entries("data_a\n" + bytes); }

/// A text field of as many units.
auto in_field(const std::string& tag, const std::string& begin, const std::string& unit) {
    return [=](unsigned int n) { return tag + "\n;" + begin + numbered(unit, n) + "\n;\n"; };
}

/// A text of codes and characters, in all forms that there are of it.
Case coded(const std::string& name, const std::string& unit) {
    return {"codes: " + name, 2000, [unit](unsigned int n) -> Operation {
                return [text = repeated(unit, n)] {
                    const CodedText coded(text);
                    static_cast<void>(CodedText(coded.unicode()).with_codes());
                    static_cast<void>(CodedText(coded.with_codes()).in_utf8());
                    std::vector<Problem> doubts;
                    coded.append_doubts(doubts);
                };
            }};
}

std::string symmetry_operations(unsigned int n) {
    return "data_x\nloop_\n_space_group_symop_operation_xyz\n" + numbered("#*x,y,z\n", n);
}

}  // namespace

std::vector<Case> text_cases() {
    return {
        searched("substrings, one letter", 4000, substrings, units("a"), units("a", "b")),
        searched("substrings, one period", 2000, substrings, units("ab"), units("ab", "c")),
        searched("substrings, two periods", 4000, substrings, units("ab"), units("abc")),
        searched("substrings, two periods apart", 4000, substrings, units("abbaaa"),
                 units("abaaa")),
        searched("substrings, letters", 4000, substrings, numbers("x#"), numbers("#x", 3)),
        searched("substrings, none alike", 2000, substrings, numbers("x#"), units("abcd")),
        searched("common runs, two periods", 4000, common_runs, units("ab"), units("abc")),
        searched("common runs, letters", 2000, common_runs, numbers("x#"), numbers("#x", 3)),
        searched("colliding authors", 1000, made<SurnameComparison>(), colliding("", ","),
                 colliding("", ", B.Li, ")),
        searched("colliding lines", 1000, lines, colliding("", "\n"), colliding("", "\n")),
        searched("equal authors", 2500, made<SurnameComparison>(), units("A.Smith, "),
                 units("B.Smith, ")),
        searched("different authors", 2500, made<SurnameComparison>(), numbers("A.S#, ", 2),
                 numbers("A.S#, ", 3)),
        searched("lines", 1000, lines, numbers("line #\n"), numbers("line #\n", 2)),
        searched("equal lines", 1000, lines, units("a\n"), units("a\n")),
        searched("digits without end", 8000, made<NumericComparison>(1), units("9"), units("9")),
        searched("signs", 8000, made<NumericComparison>(1), units("+-."), units("+-.")),
        searched("numbers", 2000, made<NumericComparison>(1), numbers("# "), numbers("# ")),
        searched("publication", 8000, made<CombinedPublicationComparisonSearch>(), units("<j>"),
                 units("<j>")),
        normalised(),
        read("long line", 500000, units("sixteen letters "), read_blocks),
        read("symmetry operations", 4000, symmetry_operations, read_entries),
        read("blocks", 1000, units("data_a\n"), read_entries),
        read(
            "blocks with what they have in common", 500,
            [](unsigned int n) {
                return repeated("data_global\n_journal_year 1999\n", n) +
                       numbers("data_#\n_cell_length_a 1\n")(n);
            },
            read_entries),
        read(
            "authors", 2000,
            [](unsigned int n) {
                return "data_a\nloop_\n_publ_author_name\n" + repeated("'Li, \\'A. B.'\n", n);
            },
            read_entries),
        read("repeated tags", 1000, units("_cell_length_a 1\n"), read_block),
        read("tags", 1000, numbers("_tag_# 1\n"), read_block),
        read(
            "columns of one row", 1000,
            [](unsigned int n) { return "loop_\n" + numbered("_tag_#\n", n) + repeated("1 ", n); },
            read_block),
        read("a loop without values", 4000, numbers("loop_\n_tag_#\n"), read_block),
        read(
            "sites", 1000,
            [](unsigned int n) {
                return "loop_\n_atom_site_label\n_atom_site_fract_x\n" + numbered("C# .1\n", n);
            },
            read_block),
        read(
            "bonds", 1000,
            [](unsigned int n) {
                return "loop_\n_geom_bond_atom_site_label_1\n_geom_bond_atom_site_label_2\n"
                       "_geom_bond_distance\n" +
                       numbered("C# C# 1.5(2)\n", n);
            },
            read_block),
        read("folded lines", 4000, in_field("_publ_section_title", "\\\n", "a\\\n"), read_block),
        read("a long formula", 2000, in_field("_chemical_formula_sum", "", "C# H2 "), read_block),
        read("brackets of a formula", 4000, in_field("_chemical_formula_moiety", "C", "("),
             read_block),
        read("a long number", 8000, in_field("_cell_length_a", "", "9"), read_block),
        read("a long person's name", 4000, in_field("_publ_author_name", "", "von A.-"),
             read_block),
        read("a long group's symbol", 4000,
             in_field("_symmetry_space_group_name_H-M", "P", " 21/n"), read_block),
        read("a long Hall symbol", 4000, in_field("_symmetry_space_group_name_Hall", "P", " 2ac"),
             read_block),
        read("a long date", 4000, in_field("_journal_date_accepted", "", "2001-"), read_block),
        read("wrong codes", 500, in_field("_publ_section_title", "", "\\'~^\\q"), read_block),
        read("names with codes", 500, in_field("_chemical_name_systematic", "", "\\a~2~\\'e-\n"),
             read_block),
        read("comments", 8000, units("# nothing\n"), read_block),
        read(
            "brackets of version 2", 4000,
            [](unsigned int n) { return "_a " + repeated("[{'a':", n) + "1" + repeated("}]", n); },
            [](const std::string& bytes) { read_entries("#\\#CIF_2.0\ndata_a\n" + bytes); }),
        read(
            "quotes", 8000, [](unsigned int n) { return "_a '" + repeated("'a", n) + "'"; },
            read_block),
        read("what is asked for again and again", 500, numbers("# "),
             [](const std::string& bytes) {
                 CifBeginning beginning;
                 for (std::size_t i = 0; i < bytes.size(); ++i) {
                     beginning.may_be_cif(std::string_view(bytes).substr(0, i));
                 }
             }),
        coded("plain codes", "\\a"),
        coded("accents", "\\'e\\\"o"),
        coded("letters beyond ASCII", "\xCE\xB1\xC3\xA9\xE2\x88\x9E"),
        coded("scripts", "a~2~^3^"),
        coded("marks alone", "~^<i>\\"),
        read("blocks with loops", 1000, numbers("data_#\nloop_\n_tag\n1 2\n"), read_entries),
    };
}
