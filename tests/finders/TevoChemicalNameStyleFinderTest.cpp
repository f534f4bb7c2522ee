#include "finders/TevoChemicalNameStyleFinder.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "tests/Random.h"

using testing::ElementsAre;
using testing::StrEq;
using testing::ThrowsMessage;

namespace {

using Finder = TevoChemicalNameStyleFinder;
template <class Slice>
using Query = void (Finder::*)(std::vector<Slice>&) const;

template <class Slice>
std::vector<Slice> found(const std::string& text, Query<Slice> query) {
    Finder finder;
    finder.set_text(text);
    std::vector<Slice> slices;
    (finder.*query)(slices);
    return slices;
}

std::vector<GreekSlice> greek(const std::string& text) { return found(text, &Finder::greek); }

/// The scan as it reads: one search for each name, from the end of its last occurrence.
std::vector<GreekSlice> greek_name_by_name(const std::string& text) {
    const Finder finder;
    const TevoChemicalNameToTextItemGreek names;
    std::vector<GreekSlice> slices;
    for (const std::string& name : names.tevo_chemical_name_greek()) {
        std::string prior;
        std::size_t end = 0;
        for (std::size_t pos = text.find(name); pos != std::string::npos;
             pos = text.find(name, end)) {
            end = pos + name.size();
            if (pos > 0) prior = text.substr(pos - 1, 1);
            const std::string next = end < text.size() ? text.substr(end, 1) : "";
            if (finder.greek_fragment(name, prior) || finder.word_fragment(name, prior, next))
                continue;
            slices.emplace_back(static_cast<unsigned int>(pos), static_cast<unsigned int>(end),
                                names.greek_symbol(name));
        }
    }
    return slices;
}

}  // namespace

TEST(TevoChemicalNameStyleFinder, ANameIsALetterWhereItStandsAlone) {
    const struct {
        const char* text;
        std::vector<GreekSlice> letters;
    } cases[] = {
        {"", {}},
        {"alpha-D-glucose", {{0, 5, TextItem::alpha}}},
        {"5alphaH", {{1, 6, TextItem::alpha}}},
        {"alpha D", {}},
        {"alphabet", {}},
        {"Alpha", {}},
        {"cdelta", {{0, 6, TextItem::cdelta}}},
        {"clambda-", {{0, 7, TextItem::clambda}}},
        {"theta zeta", {{6, 10, TextItem::zeta}}},
        {"peta", {{1, 4, TextItem::eta}}},
        {"ypi-", {{1, 3, TextItem::pi}}},
        {"spi", {{1, 3, TextItem::pi}}},
        {"kappaN", {{0, 5, TextItem::kappa}}},
        {"alphaN", {}},
        {"beta-alpha", {{5, 10, TextItem::alpha}, {0, 4, TextItem::beta}}},
        {"alphalpha", {}},  // the second begins inside the first
    };
    for (const auto& c : cases) EXPECT_EQ(greek(c.text), c.letters) << c.text;
}

TEST(TevoChemicalNameStyleFinder, OnePassFindsWhatOneSearchForEachNameFinds) {
    const TevoChemicalNameToTextItemGreek names;
    const std::string between[] = {"", "-", "c", "b", "z", "e", "H", "N", "alph", "p", "!"};
    Random random(5);
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (unsigned int i = random() % 8; i > 0; --i) {
            text += names.tevo_chemical_name_greek()[random() % 26];
            text += between[random() % std::size(between)];
        }
        ASSERT_EQ(greek(text), greek_name_by_name(text)) << text;
    }
}

TEST(TevoChemicalNameStyleFinder, FragmentTestsRefuseMoreThanOneCharacter) {
    const Finder finder;
    EXPECT_THAT([&] { finder.greek_fragment("pi", "ab"); },
                ThrowsMessage<std::runtime_error>(StrEq("illegal 'prior_char' length")));
    EXPECT_THAT([&] { finder.word_fragment("pi", "", "ab"); },
                ThrowsMessage<std::runtime_error>(StrEq("illegal 'next_char' length")));
    EXPECT_EQ(TevoChemicalNameToTextItemGreek().greek_symbol("Pi"), TextItem::no_symbol);
}

TEST(TevoChemicalNameStyleFinder, MarkersShiftDownAndUp) {
    using Slices = std::vector<StringSlice>;
    const struct {
        const char* text;
        Slices subscripts, superscripts;
    } cases[] = {
        {"", {}, {}},
        {"a!2$b$3!c", {{2, 3}}, {{6, 7}}},
        {"!2$$3!", {{1, 2}}, {{4, 5}}},
        {"!$", {{1, 1}}, {}},
        {"x!", {}, {}},
        {"!a!b$", {{1, 4}}, {}},
        // A marker without its partner ends the scan for each script at that marker.
        {"!2$ !3", {{1, 2}}, {}},
        {"!2$ $3", {{1, 2}}, {}},
        {"$2! $3! !4", {}, {{1, 2}, {5, 6}}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(found(c.text, &Finder::subscripts), c.subscripts) << c.text;
        EXPECT_EQ(found(c.text, &Finder::superscripts), c.superscripts) << c.text;
    }
    EXPECT_THAT(
        found("$3!a!2$", &Finder::invisible),
        ElementsAre(StringSlice(4, 5), StringSlice(6, 7), StringSlice(0, 1), StringSlice(2, 3)));
}

namespace {

/// Finds one script, and refuses to append it to what others have found.
template <class Base>
struct AloneStyleFinder : Base {
    void subscripts(std::vector<StringSlice>& out) const override {
        if (!out.empty()) throw std::logic_error("not alone");
        out.emplace_back(1, 2);
    }
    void superscripts(std::vector<StringSlice>& /*out*/) const override {
        throw std::runtime_error("no superscripts");
    }
};

}  // namespace

TEST(TevoChemicalNameStyleFinder, CollectsScriptsByThemselvesBeforeItHidesTheirMarkers) {
    AloneStyleFinder<Finder> finder;
    finder.set_text("!2$");
    std::vector<StringSlice> slices{{7, 8}};
    EXPECT_THROW(finder.invisible(slices), std::runtime_error);
    EXPECT_THAT(slices, ElementsAre(StringSlice(7, 8)));
    // A formula hides the counts before it looks for charges.
    AloneStyleFinder<TevoChemicalFormulaStyleFinder> formula;
    formula.set_text("C1");
    EXPECT_THROW(formula.invisible(slices), std::runtime_error);
    EXPECT_THAT(slices, ElementsAre(StringSlice(7, 8), StringSlice(1, 2)));
}
