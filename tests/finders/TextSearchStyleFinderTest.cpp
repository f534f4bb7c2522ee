#include "finders/TextSearchStyleFinder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iostream>
#include <sstream>

#include "finders/ChemicalNameMatchStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "host/KOVRLog.h"
#include "markup/HtmlRichTextGenerator.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "tests/Random.h"
#include "text/StringSliceReducer.h"
#include "text/TextItem.h"

using testing::HasSubstr;

namespace {

using Slices = std::vector<StringSlice>;

/// Says what a test put in, and true for its term.
class FixedSearch : public TextSearch {
public:
    bool search(const std::string& text, Slices& out) const override {
        out.insert(out.end(), slices.begin(), slices.end());
        return text == term_;
    }
    void set_search_term(const std::string& term) override { term_ = term; }

    Slices slices;

private:
    std::string term_;
};

/// Reports the slices that a test put in for each kind of style, in the order that they are tried.
class FixedFinder : public InputTextStyleFinder {
public:
    using Replacements = std::vector<ReplacementTextSlice>;

    void bold(Slices& out) const override { report(0, out); }
    void color(std::vector<ColorSlice>& out) const override { report(1, out, TextItem::red); }
    void italic(Slices& out) const override { report(2, out); }
    void subscripts(Slices& out) const override { report(3, out); }
    void superscripts(Slices& out) const override { report(4, out); }
    void overstrike(Slices& out) const override { report(5, out); }
    void invisible(Slices& out) const override { report(6, out); }
    void replacement_text(Replacements& out) const override { report(7, out, "R"); }
    void greek(std::vector<GreekSlice>& out) const override { report(8, out, TextItem::mu); }

    Slices kinds[9];
    std::string failing;        // the kinds whose queries throw their own number
    mutable std::string asked;  // the kinds in the order of the queries

private:
    template <class Slice, class... Payload>
    void report(std::size_t kind, std::vector<Slice>& out, Payload... payload) const {
        const std::string number = std::to_string(kind);
        asked += number;
        if (failing.find(number) != std::string::npos) throw std::runtime_error(number);
        for (const StringSlice& s : kinds[kind]) out.emplace_back(s.from(), s.to(), payload...);
    }
};

/// Trims each match at the first style of a list that it crosses, and begins that list again.
Slices combined(Slices matches, const Slices (&kinds)[9]) {
    Slices overlay, replacing;
    for (int n = 0; n < 9; ++n) {
        Slices& list = n < 6 ? overlay : replacing;
        list.insert(list.end(), kinds[n].begin(), kinds[n].end());
    }
    for (const Slices& list : {overlay, replacing}) {
        for (StringSlice& match : matches) {
            for (auto s = list.begin(); s != list.end();) {
                const bool crosses = s->partial_intersection(match);
                if (crosses) match = call_remove_overlap(match, *s);
                s = crosses ? list.begin() : s + 1;
            }
        }
    }
    for (const StringSlice& s : replacing) {
        std::erase_if(matches,
                      [&](auto& match) { return match.overlaps(s) && !match.has_subset(s); });
    }
    return matches;
}

}  // namespace

TEST(TextSearchStyleFinder, KeepsTheLargerPieceOrOnATieTheOneOutside) {
    EXPECT_EQ(call_remove_overlap({2, 8}, {0, 4}), StringSlice(4, 8));
    EXPECT_EQ(call_remove_overlap({2, 8}, {0, 6}), StringSlice(2, 6));
    EXPECT_EQ(call_remove_overlap({3, 5}, {0, 4}), StringSlice(4, 5));
    EXPECT_EQ(call_remove_overlap({3, 5}, {4, 6}), StringSlice(3, 4));
}

TEST(TextSearchStyleFinder, EqualsCombiningOneByOne) {
    Random random(1);
    for (unsigned int round = 0; round < 5000; ++round) {
        const unsigned int size = round % 500 == 0 ? 1000 : 6;
        const auto search = make_handle<FixedSearch>();
        const auto styles = make_handle<FixedFinder>();
        for (unsigned int n = random() % (3 * size); n > 0; --n) {
            const unsigned int from = random() % (3 * size), to = from + random() % 12;
            (n % 3 == 0 ? search->slices : styles->kinds[random() % 9]).emplace_back(from, to);
        }
        const bool exact = round % 2 == 0;
        TextSearchStyleFinder finder(search, styles);
        finder.set_text("a text before");
        finder.set_search_term(exact ? "text" : "term");
        finder.set_text("text");
        finder.set_search_term("a term for the next text");
        EXPECT_EQ(finder.match_exact(), exact);

        const Slices matches = combined(search->slices, styles->kinds);
        std::vector<ColorSlice> colors, expected;
        finder.color(colors);
        styles->color(expected);
        for (const StringSlice& s : matches) {
            expected.emplace_back(s.from(), s.to(), exact ? TextItem::green4 : TextItem::blue);
        }
        ASSERT_EQ(colors, expected) << round;
        Slices bold;
        finder.bold(bold);
        StringSliceReducer merged(styles->kinds[0].begin(), styles->kinds[0].end());
        merged.add(matches.begin(), matches.end());
        ASSERT_THAT(bold, testing::UnorderedElementsAreArray(merged.slices())) << round;
        using F = InputTextStyleFinder;
        for (const auto query :
             {&F::italic, &F::subscripts, &F::superscripts, &F::overstrike, &F::invisible}) {
            Slices forwarded, own;
            (finder.*query)(forwarded);
            (styles.get()->*query)(own);
            ASSERT_EQ(forwarded, own) << round;
        }
    }
}

TEST(TextSearchStyleFinder, AsksForAllStylesInOrderBeforeItTrims) {
    const auto search = make_handle<FixedSearch>();
    const auto styles = make_handle<FixedFinder>();
    search->slices = {{2, 8}};
    styles->kinds[0] = {{0, 4}};
    TextSearchStyleFinder finder(search, styles);
    finder.set_text("text");
    EXPECT_EQ(styles->asked, "012345678");
    for (const auto& [failing, first] : {std::pair("60", "0"), {"85", "5"}, {"87", "7"}}) {
        styles->failing = failing;
        EXPECT_THAT([&] { finder.set_text("text"); },
                    testing::ThrowsMessage<std::runtime_error>(first));
        styles->failing.clear();
        std::vector<ColorSlice> colors;
        finder.color(colors);
        EXPECT_THAT(colors, testing::ElementsAre(ColorSlice(2, 8, TextItem::blue)));
    }
}

TEST(TextSearchStyleFinder, TellsTheDebugLogWhatItFound) {
    TextSearchStyleFinder finder(
        make_handle<MultipleLineTextComparison>(make_handle<EntireTextComparison>()),
        make_handle<InputTextStyleFinder>());
    finder.set_search_term("b");
    std::ostringstream log;
    std::streambuf* const before = std::clog.rdbuf(log.rdbuf());
    for (KOVRLog::level_ = 2; KOVRLog::level_ <= 3; ++KOVRLog::level_) {
        EXPECT_EQ(log.str(), "");
        finder.set_text("a\nb");
    }
    KOVRLog::level_ = 0;
    std::clog.rdbuf(before);
    EXPECT_THAT(log.str(), HasSubstr("MultipleLineTextComparison search: b\ntext: a\nb"));
    EXPECT_THAT(log.str(), HasSubstr("MultipleLineTextComparison matches: 0: "));
    EXPECT_THAT(log.str(), HasSubstr("TextSearchStyleFinder::combined matches: "));
}

TEST(ChemicalNameMatchStyleFinder, HighlightsWhatNamesHaveInCommon) {
    const auto finder =
        make_handle<ChemicalNameMatchStyleFinder>(make_handle<TevoChemicalNameStyleFinder>());
    finder->set_search_term("(pha-iron) xide");
    HtmlRichTextGenerator generator;
    EXPECT_EQ(TextItem(finder, "alpha-iron!2$oxide").mark_up_text(generator),
              "<font face=symbol>a</font><b><font color=blue>-iron</font></b><sub>2</sub>o"
              "<b><font color=blue>xide</font></b><p>");
}
