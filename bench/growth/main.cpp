// Runs every operation whose cost is promised to grow with its input, on the worst input known for
// it, at one, two and four times a size, and has callgrind count the instructions of each.
#include <valgrind/callgrind.h>

#include <cstdio>
#include <functional>
#include <memory>

#include "entries/EntryReader.h"
#include "cli/TextBlocks.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/TextSearchStyleFinder.h"
#include "fuzz/MemoryFile.h"
#include "markup/RichTextTarget.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NormalisedString.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"
#include "tests/markup/StyleLists.h"
#include "tests/robustness/colliding_names.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

/// An operation with its input made, to be run once.
using Operation = std::function<void()>;

struct Case {
    std::string name;
    unsigned int size;
    std::function<Operation(unsigned int size)> prepare;
};

std::string repeated(const std::string& unit, unsigned int times) {
    std::string text;
    for (unsigned int i = 0; i < times; ++i) text += unit;
    return text;
}

/// unit, "#" in it being the number, from 0 on.
std::string numbered(const std::string& unit, unsigned int times, unsigned int factor = 1) {
    std::string text;
    const std::size_t sign = unit.find('#');
    for (unsigned int i = 0; i < times; ++i) {
        text += unit.substr(0, sign) + std::to_string(i * factor) + unit.substr(sign + 1);
    }
    return text;
}

/// Styles, written and taken into atoms, as the finder finds them in units of text.
template <class Finder>
Case found(const std::string& name, unsigned int size, const std::string& begin,
           const std::string& unit) {
    return {name, size, [=](unsigned int n) -> Operation {
                const auto item = std::make_shared<TextItem>(make_handle<Finder>());
                return [item, text = begin + repeated(unit, n)] {
                    item->set_text(text);
                    item->atomize();
                };
            }};
}

/// The slice of style i of n in a text of 2 n characters.
using Shape = StringSlice (*)(unsigned int i, unsigned int n);

StringSlice nested(unsigned int i, unsigned int n) { return {i, 2 * n - i}; }
StringSlice outwards(unsigned int i, unsigned int n) { return {n - 1 - i, n + 1 + i}; }
StringSlice touching(unsigned int i, unsigned int /*n*/) { return {2 * i, 2 * i + 2}; }
StringSlice one_end(unsigned int i, unsigned int n) { return {i, 2 * n}; }
StringSlice one_begin(unsigned int i, unsigned int /*n*/) { return {0, i + 1}; }
StringSlice sliding(unsigned int i, unsigned int n) { return {i, i + n / 2}; }

constexpr struct {
    const char* name;
    Shape shape;
} shapes[] = {{"nested", nested},   {"outwards", outwards},   {"touching", touching},
              {"one end", one_end}, {"one begin", one_begin}, {"sliding", sliding}};

Case created(const char* name, Shape shape) {
    return {std::string("create ") + name, 2000, [=](unsigned int n) -> Operation {
                return [=] {
                    TextItem item(make_handle<InputTextStyleFinder>(), std::string(2 * n, 'x'));
                    for (unsigned int i = 0; i < n; ++i) {
                        const StringSlice slice = shape(i, n);
                        item.create_italic(slice.from(), slice.to());
                    }
                    item.atomize();
                };
            }};
}

Case replaced() {
    return {"create replacement texts", 2000, [](unsigned int n) -> Operation {
                return [=] {
                    TextItem item(make_handle<InputTextStyleFinder>(), std::string(4 * n, 'x'));
                    for (unsigned int i = 0; i < n; ++i) {
                        item.create_invisible(4 * i, 4 * i + 1);
                        item.create_replacement_text(4 * i + 1, 4 * i + 4, "r");
                        item.create_color(4 * i + 1, 4 * i + 4, TextItem::red);
                    }
                };
            }};
}

Case written(const RichTextTarget& target, const char* name, Shape shape,
             StyleLists& (StyleLists::*add)(unsigned int, unsigned int)) {
    return {std::string("write ") + target.name + ' ' + name, 1000,
            [=](unsigned int n) -> Operation {
                const auto styles = std::make_shared<StyleLists>();
                for (unsigned int i = 0; i < n; ++i) {
                    const StringSlice slice = shape(i, n);
                    ((*styles).*add)(slice.from(), slice.to());
                }
                return [=, generator = target.make_generator()] {
                    generator->mark_up_text(styles->data(repeated("1.", n), 1));
                };
            }};
}

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

/// A finder that finds scripts everywhere.
struct EveryOther : InputTextStyleFinder {
    void bold(std::vector<StringSlice>& out) const override {
        for (unsigned int i = 0; i + 2 < text().size(); i += 3) out.emplace_back(i, i + 2);
    }
};

Case highlighted() {
    return {"highlight matches across styles", 2000, [](unsigned int n) -> Operation {
                const auto search = made<NumericComparison>(0)();
                search->set_search_term(repeated("12 ", n));
                const auto item = std::make_shared<TextItem>(
                    make_handle<TextSearchStyleFinder>(search, make_handle<EveryOther>()));
                return [item, text = repeated("12 ", n)] { item->set_text(text); };
            }};
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

std::string symmetry_operations(unsigned int n) {
    return "data_x\nloop_\n_space_group_symop_operation_xyz\n" + numbered("#*x,y,z\n", n);
}

std::vector<Case> all_cases() {
    using Tevo = TevoChemicalNameStyleFinder;
    using Cif = CifChemicalNameStyleFinder;
    std::vector<Case> cases = {
        found<Tevo>("tevo unclosed", 50000, "", "!"),
        found<Tevo>("tevo alternating", 4000, "", "!$"),
        found<Tevo>("tevo scripts", 2000, "", "!2$-$3!"),
        found<Tevo>("tevo begun letters", 8000, "", "alph"),
        found<Tevo>("tevo letters", 2000, "", "mu-eta-"),
        found<Tevo>("tevo letters within words", 2000, "", "epsilonomega"),
        found<Cif>("cif one mark", 20000, "~", "a"),
        found<Cif>("cif marks", 4000, "", "^~"),
        found<Cif>("cif letters", 2000, "", "\\a~2~"),
        found<TevoChemicalFormulaStyleFinder>("formula", 2000, "", "C12 H3 "),
        found<TevoChemicalFormulaStyleFinder>("formula digits", 8000, "C", "9"),
        found<SpaceGroupStyleFinder>("space group", 2000, "P", "2<sub>1</sub><bar>1</bar>"),
        found<SpaceGroupStyleFinder>("space group unclosed", 4000, "P", "<sub>"),
        found<CombinedCellLengthsStyleFinder>("cell lengths", 8000, "a 1 b 2 c 3", " 4"),
        found<TevoPublicationStyleFinder>("reference", 8000, "<j>A</j><v>1</v><y>2</y><p>3</p>",
                                          "<j>"),
        replaced(),
        searched("substrings, one letter", 4000, substrings, units("a"), units("a", "b")),
        searched("substrings, one period", 2000, substrings, units("ab"), units("ab", "c")),
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
        highlighted(),
        normalised(),
        read("long line", 500000, units("sixteen letters "), read_blocks),
        read("symmetry operations", 4000, symmetry_operations, read_entries),
        read("blocks", 1000, units("data_a\n"), read_entries),
        read("blocks with loops", 1000, numbers("data_#\nloop_\n_tag\n1 2\n"), read_entries),
    };
    for (const auto& shape : shapes) {
        if (shape.shape != sliding) cases.push_back(created(shape.name, shape.shape));
        for (const RichTextTarget& target : rich_text_targets()) {
            // A mark of the text in braces tells as much as one outside them.
            cases.push_back(written(target, shape.name, shape.shape, &StyleLists::bold));
        }
    }
    for (const RichTextTarget& target : rich_text_targets()) {
        cases.push_back(written(target, "nested scripts", nested, &StyleLists::superscript));
        cases.push_back(written(target, "letters", touching, &StyleLists::greek));
        cases.push_back(written(target, "colours", one_end, &StyleLists::color));
    }
    return cases;
}

}  // namespace

int main() {
    if (RUNNING_ON_VALGRIND == 0) {
        std::fputs("growth: to be run by callgrind\n", stderr);
        return 2;
    }
    for (const Case& c : all_cases()) {
        for (const unsigned int size : {c.size, 2 * c.size, 4 * c.size}) {
            c.prepare(size)();  // whatever is made once is made now
            const Operation operation = c.prepare(size);
            static std::string label;  // read after the request has returned
            label = c.name + '/' + std::to_string(size);
            CALLGRIND_ZERO_STATS;
            CALLGRIND_TOGGLE_COLLECT;
            operation();
            CALLGRIND_TOGGLE_COLLECT;
            CALLGRIND_DUMP_STATS_AT(label.c_str());
        }
    }
}
