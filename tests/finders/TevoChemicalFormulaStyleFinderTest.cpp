#include "finders/TevoChemicalFormulaStyleFinder.h"

#include <gmock/gmock.h>

TEST(TevoChemicalFormulaStyleFinder, LowersCountsAndRaisesChargesButShowsNoOne) {
    using Slices = std::vector<StringSlice>;
    const struct {
        const char* text;
        Slices subscripts, superscripts, invisible;
    } cases[] = {
        {"", {}, {}, {}},
        {"2C", {}, {}, {}},
        {"H2O", {{1, 2}}, {}, {}},
        {"Ca Cl2", {{5, 6}}, {}, {}},
        {"C6 H12 N1 O2 1+", {{1, 2}, {4, 6}, {8, 9}, {11, 12}}, {{13, 15}}, {{8, 9}, {13, 14}}},
        {"Fe 3+", {}, {{3, 5}}, {}},
        {"Na 1+ Cl 1-", {}, {{3, 5}, {9, 11}}, {{3, 4}, {9, 10}}},
        {"A\t1+-2 +", {}, {{2, 6}}, {}},
        {"N11 1", {{1, 3}}, {{4, 5}}, {}},
        {"(C2 H4)n 5n", {{2, 3}, {5, 6}, {7, 8}}, {{9, 10}}, {}},
        {"(O H)2n", {}, {}, {}},
        {"\xE9"
         "2",
         {},
         {},
         {}},
    };
    TevoChemicalFormulaStyleFinder finder;
    for (const auto& c : cases) {
        finder.set_text(c.text);
        Slices subscripts, superscripts, invisible;
        finder.subscripts(subscripts);
        finder.superscripts(superscripts);
        finder.invisible(invisible);
        EXPECT_EQ(subscripts, c.subscripts) << c.text;
        EXPECT_EQ(superscripts, c.superscripts) << c.text;
        EXPECT_EQ(invisible, c.invisible) << c.text;
    }
}
