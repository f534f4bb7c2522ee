#include <memory>
#include <string>
#include <vector>

#include "bench/growth/Case.h"
#include "entries/EntryReader.h"
#include "tasks/EntryEditor.h"
#include "tasks/EntryFinder.h"
#include "tasks/EntryNames.h"
#include "tasks/EntryPairing.h"
#include "tasks/TermKind.h"
#include "tasks/TextReplacement.h"
#include "tasks/View.h"
#include "tasks/edits_in_json.h"
#include "tasks/nearest_word.h"
#include "tasks/row_named.h"

namespace {

/// The bytes of a file, and its entries.
struct Read {
    explicit Read(std::string cif) : bytes(std::move(cif)), reader(bytes) {}

    std::string bytes;
    EntryReader reader;
};

constexpr char title[] = "data_a\n_publ_section_title\n;";
constexpr char formula[] = "data_a\n_chemical_formula_sum\n;";
constexpr char field_end[] = "\n;\n";

/// A term looked for in the fields of an entry.
Case found(const char* name, unsigned int size, const std::string& head, const std::string& unit,
           const std::string& term) {
    return {std::string("find ").append(name), size, [=](unsigned int n) -> Operation {
                const auto read = std::make_shared<Read>(head + numbered(unit, n) + field_end);
                EntryFinder::Terms terms;
                terms.push_back(make_term(term, {}));
                const auto finder =
                    std::make_shared<EntryFinder>(::fields(), std::move(terms), Folding{});
                return [=] { finder->find(read->reader[0]); };
            }};
}

/// A term of half the words of a text, which all but its last match at each place.
Case found_all() {
    return {"find: a long term", 4000, [](unsigned int n) -> Operation {
                const auto read = std::make_shared<Read>(title + repeated("ab ", n) + field_end);
                EntryFinder::Terms terms;
                terms.push_back(make_term(repeated("ab ", n / 2) + "c", {}));
                const auto finder =
                    std::make_shared<EntryFinder>(::fields(), std::move(terms), Folding{});
                return [=] { finder->find(read->reader[0]); };
            }};
}

/// An edit of a field of each entry of a file.
Case edited(const char* name, const char* head, const char* unit, const char* label,
            const char* text) {
    return {std::string("edit ").append(name), 100, [=](unsigned int n) -> Operation {
                const auto read = std::make_shared<Read>(head + numbered(unit, n));
                return [=] {
                    EntryEditor editor(read->reader);
                    for (std::size_t i = 0; i < read->reader.size(); ++i) {
                        editor.set(i, field_named(label), text, nullptr);
                    }
                    editor.splices();
                    editor.problems();
                };
            }};
}

/// A field of one entry made to say a text of many units.
Case edited_text(const char* name, unsigned int size, const std::string& head,
                 const std::string& unit, const char* tail, const char* label,
                 const std::string& new_unit) {
    return {std::string("edit ").append(name), size, [=](unsigned int n) -> Operation {
                const auto read = std::make_shared<Read>(head + numbered(unit, n) + tail);
                return [=, text = numbered(new_unit, n)] {
                    EntryEditor editor(read->reader);
                    editor.set(0, field_named(label), text, nullptr);
                    editor.splices();
                };
            }};
}

Case replaced(const char* name, const char* unit, const char* old, const char* text) {
    return {std::string("replace ").append(name), 1000, [=](unsigned int n) -> Operation {
                return [=, all = repeated(unit, n)] {
                    TextReplacement(*row_named(sources(), "cif-text"), all, old).with(text);
                };
            }};
}

// Small: behind each object nlohmann's parser looks through all before it, which some thousands
// show.
Case asked_in_json(const char* name, const char* begin, const char* unit, const char* end) {
    return {std::string("JSON: ").append(name), 200, [=](unsigned int n) -> Operation {
                return [json = begin + repeated(unit, n) + end] {
                    try {
                        edits_in_json(json);
                    } catch (const EditsError&) {
                    }
                };
            }};
}

/// Entries of one name each, on two sides.
Case paired(const char* name, const char* unit) {
    return {std::string("pairs of ").append(name), 200, [=](unsigned int n) -> Operation {
                const Read read(numbered(unit, n));
                std::vector<EntryTexts> entries;
                for (std::size_t i = 0; i < read.reader.size(); ++i) {
                    entries.emplace_back("f", read.reader[i], std::span<const Field>());
                }
                return [entries] {
                    EntryPairing pairing;
                    for (std::size_t i = 0; i < entries.size(); ++i) {
                        pairing.add(EntryPairing::left, entries[i], "l");
                        pairing.add(EntryPairing::right, entries[entries.size() - 1 - i], "r");
                    }
                    pairing.finish();
                };
            }};
}

Case named() {
    return {"entries named", 2000, [](unsigned int n) -> Operation {
                const auto read = std::make_shared<Read>(numbered("data_A#\n", n));
                return [=] {
                    const EntryNames names(read->reader);
                    for (const std::string_view name : names.all()) {
                        names.named(std::string(name));
                    }
                };
            }};
}

Case nearest() {
    return {"nearest word", 200, [](unsigned int n) -> Operation {
                return [words = std::vector<std::string_view>(n, "aaaabaaaabaaaab")] {
                    nearest_word("aaaaaaaaaaaaaaa", words);
                };
            }};
}

}  // namespace

std::vector<Case> task_cases() {
    return {
        found("a word everywhere", 500, title, "\\a-b^#^ ", "b"),
        found("half a word", 4000, title, "aab", "aaaab"),
        found("numbers", 2000, title, "1.5 # ", "1.50(3)"),
        found("digits without end", 8000, title, "9", "99.5"),
        found("elements", 2000, formula, "C# H2 ", "C1H2"),
        found("a formula of elements", 2000, formula, "(C# H2)", "formula:C1H2"),
        found("marks", 1000, title, "e\xCC\x81\xCC\x82", "e"),
        found_all(),
        edited("a field that all lack", "", "data_#\n_tag_# 1\n", "Color", "red"),
        edited("a field that all have", "", "data_#\n_exptl_crystal_colour 1\n", "Color", "red"),
        edited("what all have in common", "data_global\n_journal_year 1\n_publ_section_title x\n",
               "data_#\n_cell_length_a 1\n", "Title", "new"),
        edited("what each has in a loop", "", "data_#\nloop_\n_publ_author_name\n'A B' 'C D'\n",
               "Author(s)", "C.Dee, A.Bee, E.Eff"),
        edited_text("authors", 500, "data_a\nloop_\n_publ_author_name\n", "'Blake#, A. J.'\n", "",
                    "Author(s)", "B.Blake#, "),
        edited_text("a long title", 500, title, "\\a-F^#^\n", field_end, "Title",
                    "\xCE\xB1-F\xC2\xB2 # "),
        edited_text("a list of synonyms", 500, "data_a\nloop_\n_chemical_name_common\n",
                    "'name #'\n", "", "Synonym", "name 1#; "),
        replaced("what is seen", "\\a<i>b</i>^2^ ", "b", "c"),
        replaced("what is not seen", "\\a<i>b</i>^2^ ", "<i>", "<b>"),
        replaced("nothing shown around", "~~b", "b", "c"),
        asked_in_json(
            "entries", "[{\"file\":\"f\",\"block\":\"b\",\"fields\":[]}",
            ",{\"file\":\"f\",\"block\":\"b\",\"fields\":[{\"label\":\"Color\",\"text\":null}]}",
            "]"),
        asked_in_json("what does not count", "[{\"x\":[0", ",[{\"file\":0}]", "]}]"),
        asked_in_json("brackets without end", "", "[", ""),
        paired("names", "data_#\n_chemical_name_common 'name of #'\n"),
        paired("equal names", "data_#\n_chemical_name_common 'one name'\n"),
        paired("equal identifiers", "data_#\n_cod_database_code 1\n"),
        paired("equal cells",
               "data_#\n_chemical_formula_sum C\n_cell_length_a 5\n_cell_length_b 6\n"
               "_cell_length_c 7\n_cell_angle_alpha 90\n_cell_angle_beta 90\n"
               "_cell_angle_gamma 90\n_symmetry_space_group_name_H-M P1\n"),
        named(),
        nearest(),
    };
}
