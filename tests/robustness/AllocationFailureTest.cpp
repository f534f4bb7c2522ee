// Every allocation of every operation fails once, and from there on: std::bad_alloc comes out,
// nothing is lost, and the same call then works.
#include <gmock/gmock.h>

#include <functional>
#include <sstream>

#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/TextSearchStyleFinder.h"
#include "finders/UnicodeTextStyleFinder.h"
#include "markup/RichTextTarget.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NormalisedString.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"
#include "tests/robustness/failing_operation.h"
#include "text/StringSliceReducer.h"
#include "text/TextAtom.h"
#include "text/TextItem.h"

namespace {

template <class Finder>
FailingCase set_text(const std::string& name, const std::string& text) {
    return {"set_text " + name, [=]() -> FailingOperation {
                const auto item = std::make_shared<TextItem>(make_handle<Finder>(), text + text);
                return [=] {
                    item->set_text(text);
                    std::ostringstream styles;
                    styles.exceptions(std::ios::badbit);
                    item->print(styles);
                    return styles.str();
                };
            }};
}

FailingCase written(const RichTextTarget& target) {
    return {std::string("write ") + target.name, [&target]() -> FailingOperation {
                const auto item = std::make_shared<TextItem>(
                    make_handle<TevoChemicalNameStyleFinder>(),
                    "a long enough name of alpha-D-gluco!2$-kappa$2!N, bis(mu!3$-oxo)");
                item->create_bold(0, 6);
                item->create_overstrike(2, 6);
                item->create_color(2, 6, TextItem::green4);
                item->set_line_length(7);
                return [item, generator = target.make_generator()] {
                    return item->mark_up_text(*generator);
                };
            }};
}

std::string printed(const std::vector<StringSlice>& slices) {
    std::ostringstream all;
    all.exceptions(std::ios::badbit);
    for (const StringSlice& slice : slices) all << slice << '\n';
    return all.str();
}

template <class Search, class... Arguments>
FailingCase searched(const std::string& name, const std::string& term, const std::string& text,
                     Arguments... arguments) {
    return {"search " + name, [=]() -> FailingOperation {
                const auto search = std::make_shared<Search>(arguments...);
                search->set_search_term(term);
                return [=] {
                    std::vector<StringSlice> slices;
                    static_cast<TextSearch&>(*search).search(text, slices);
                    return printed(slices);
                };
            }};
}

std::vector<FailingCase> all_cases() {
    const std::string authors = "A.B.Smith, C.Jones, D.Nunez-Garcia";
    std::vector<FailingCase> cases = {
        set_text<TevoChemicalNameStyleFinder>("tevo", "tri-mu!3$-oxo-alpha-kappa$2!N and more"),
        set_text<CifTextStyleFinder>("cif text", "<i>N</i>-\\k~2~ \\'e &lt; \\\\foo ~"),
        set_text<UnicodeTextStyleFinder>("unicode", "x²₃ _{eq} P1\u0305 αβ"),
        set_text<CifChemicalNameStyleFinder>("cif", "\\a-C~2~H^3+^ and so on and so forth"),
        set_text<TevoChemicalFormulaStyleFinder>("formula", "C6 H12 N1 O2 1+,(C1 H2)n"),
        set_text<SpaceGroupStyleFinder>("space group", "P<bar>1</bar>2<sub>1</sub>/c"),
        set_text<TevoPublicationStyleFinder>("reference",
                                             "<j>Acta Cryst.</j><v>57</v><y>2001</y><p>1055</p>"),
        {"atomize",
         []() -> FailingOperation {
             const auto item = std::make_shared<TextItem>(
                 make_handle<TevoChemicalNameStyleFinder>(), "alpha-D-gluco!2$-kappa$2!N");
             return [=] {
                 std::ostringstream atoms;
                 atoms.exceptions(std::ios::badbit);
                 for (const TextAtom& atom : item->atomize()) atoms << atom;
                 return atoms.str();
             };
         }},
        {"highlight",
         []() -> FailingOperation {
             const auto search = make_handle<NumericComparison>(1);
             search->set_search_term("1.5 2.5");
             const auto item = std::make_shared<TextItem>(make_handle<TextSearchStyleFinder>(
                 search, make_handle<TevoChemicalNameStyleFinder>()));
             return [=] {
                 item->set_text("mu!2$ and 2.5");
                 std::ostringstream styles;
                 styles.exceptions(std::ios::badbit);
                 item->print(styles);
                 return styles.str();
             };
         }},
        {"normalise",
         []() -> FailingOperation {
             return [] {
                 return NormalisedString(StringNormalisationPolicy(0x1C, "x"),
                                         "a text, that is (long) enough to need room")
                     .normalised();
             };
         }},
        {"reduce",
         []() -> FailingOperation {
             return [] {
                 StringSliceReducer reducer;
                 for (unsigned int i = 0; i < 9; ++i) reducer.add({2 * i, 2 * i + 3});
                 return printed(reducer.slices());
             };
         }},
        searched<EntireTextComparison>("exact", "abc", "abc"),
        searched<MultipleLineTextComparison>("lines", "two\none", "one\ntwo\nthree",
                                             make_handle<EntireTextComparison>()),
        searched<NumericComparison>("numbers", "1.5 2", "1.5(2) and 2.25", 1),
        searched<SurnameComparison>("authors", authors, "C.Jones, D.Nunez-Garcia, A.Smith"),
        searched<CombinedPublicationComparisonSearch>("reference", "<j>A</j><v>1</v>",
                                                      "<j>A</j><v>2</v>"),
        searched<CommonSubstringFinderAdapter>("substrings", "beta-D-glucopyranoside and more",
                                               "D-gluco-pyranosides and others",
                                               StringNormalisationPolicy(0x0C, ""), 3U, ""),
    };
    for (const RichTextTarget& target : rich_text_targets()) cases.push_back(written(target));
    return cases;
}

std::string styles_of(const TextItem& item) {
    std::ostringstream styles;
    styles.exceptions(std::ios::badbit);
    item.print(styles);
    for (const TextAtom& atom : item.atomize()) styles << atom;
    return styles.str();
}

}  // namespace

TEST(AllocationFailure, ComesOutAndTheSameCallThenWorks) {
    expect_failures_to_come_out(all_cases());
}

TEST(AllocationFailure, ACreatorLeavesTheItemAsItWas) {
    const std::pair<const char*, std::function<void(TextItem&)>> creators[] = {
        {"bold", [](TextItem& item) { item.create_bold(1, 4); }},
        {"superscript", [](TextItem& item) { item.create_superscript(2, 3); }},
        {"invisible", [](TextItem& item) { item.create_invisible(5, 6); }},
        {"greek", [](TextItem& item) { item.create_greek(6, 8, TextItem::mu); }},
        {"color", [](TextItem& item) { item.create_color(1, 4, TextItem::red); }},
        {"replacement",
         [](TextItem& item) {
             item.create_replacement_text(9, 12, "a text that needs an allocation of its own");
         }},
    };
    for (const auto& [name, create] : creators) {
        for (unsigned int n = 1;; ++n) {
            TextItem item(make_handle<TevoChemicalNameStyleFinder>(), "0123456789012!3$");
            const std::string before = styles_of(item);
            const bool threw = throws_at(n, false, [&item, &lay = create] { lay(item); });
            if (!stop_failing()) break;
            ASSERT_TRUE(threw) << name;
            ASSERT_EQ(styles_of(item), before) << name << ", allocation " << n;
            create(item);
            ASSERT_NE(styles_of(item), before) << name;
        }
    }
}
