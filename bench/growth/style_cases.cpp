#include <memory>

#include "bench/growth/Case.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CifFormulaStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/TextSearchStyleFinder.h"
#include "finders/UnicodeTextStyleFinder.h"
#include "fuzz/StyleLists.h"
#include "markup/DisplayedText.h"
#include "markup/RichTextTarget.h"
#include "search/NumericComparison.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

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

/// Each position asked for both ways.
Case displayed() {
    return {"displayed text", 2000, [](unsigned int n) -> Operation {
                const auto item = std::make_shared<TextItem>(make_handle<CifTextStyleFinder>(),
                                                             repeated("\\'e~2~é", n));
                return [item] {
                    const DisplayedText shown(*item);
                    for (unsigned int i = 0; i < shown.size(DisplayedText::utf16); ++i) {
                        const StringSlice place(i, i + 1);
                        shown.shown(shown.in_item(place, DisplayedText::utf16),
                                    DisplayedText::characters);
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

/// A finder that finds scripts everywhere.
struct EveryOther : InputTextStyleFinder {
    void bold(std::vector<StringSlice>& out) const override {
        for (unsigned int i = 0; i + 2 < text().size(); i += 3) out.emplace_back(i, i + 2);
    }
};

Case highlighted() {
    return {"highlight matches across styles", 2000, [](unsigned int n) -> Operation {
                const auto search = make_handle<NumericComparison>(0);
                search->set_search_term(repeated("12 ", n));
                const auto item = std::make_shared<TextItem>(
                    make_handle<TextSearchStyleFinder>(search, make_handle<EveryOther>()));
                return [item, text = repeated("12 ", n)] { item->set_text(text); };
            }};
}

}  // namespace

std::vector<Case> style_cases() {
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
        found<CifFormulaStyleFinder>("cif formula", 2000, "", "C1-x H3.5 2+, "),
        found<CifFormulaStyleFinder>("cif formula dots", 8000, "C", "1."),
        found<CifTextStyleFinder>("cif text marks", 4000, "", "~^"),
        found<CifTextStyleFinder>("cif text tags", 4000, "", "<sub>"),
        found<CifTextStyleFinder>("cif text codes", 2000, "", "\\a\\'e--&lt;~2~"),
        found<CifTextStyleFinder>("cif text accents", 8000, "", "\\'"),
        found<UnicodeTextStyleFinder>("unicode scripts", 2000, "", "x²₃"),
        found<UnicodeTextStyleFinder>("unicode braces", 4000, "", "_{"),
        found<SpaceGroupStyleFinder>("space group", 2000, "P", "2<sub>1</sub><bar>1</bar>"),
        found<SpaceGroupStyleFinder>("space group unclosed", 4000, "P", "<sub>"),
        found<CombinedCellLengthsStyleFinder>("cell lengths", 8000, "a 1 b 2 c 3", " 4"),
        found<TevoPublicationStyleFinder>("reference", 8000, "<j>A</j><v>1</v><y>2</y><p>3</p>",
                                          "<j>"),
        replaced(),
        displayed(),
        highlighted(),
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
