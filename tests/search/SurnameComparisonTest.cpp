#include "search/SurnameComparison.h"

#include <gmock/gmock.h>

using Slices = std::vector<StringSlice>;

static Slices found(const std::string& term, const std::string& text) {
    Slices slices{{7, 9}};
    EXPECT_EQ(SurnameComparison().comparison_search(term, text, slices), term == text) << text;
    EXPECT_EQ(slices.at(0), StringSlice(7, 9));
    return {slices.begin() + 1, slices.end()};
}

TEST(SurnameComparison, MarksWholeNamesAndThenSurnames) {
    EXPECT_EQ(found("A. Smith, B. Jones", "B. Jones, D. Brown"), (Slices{{0, 8}}));
    EXPECT_EQ(found(" A.Smith ,B", "B,C.Smith, A.Smith "), (Slices{{0, 1}, {11, 18}}));
    EXPECT_EQ(found("B.Smith,B.Smith", "A.Smith,D.Jones,C.Smith,E.Smith"),
              (Slices{{2, 7}, {18, 23}}));
    EXPECT_EQ(found("A.Smith", "A. Smith"), Slices());
    EXPECT_EQ(found("A. Smith", "B. Smith"), (Slices{{2, 2}, {3, 8}}));
    EXPECT_EQ(found("A.B.Ng-Smith", "C.Smith Ng"), Slices());
    EXPECT_EQ(found("A.B.Ng-Smith-X", "C.Smith Ng Xu"), (Slices{{2, 7}, {8, 10}}));
    EXPECT_EQ(found("Smith Smith Ng", "Ng Ng Smith, Ng-Smith-Smith"),
              (Slices{{13, 15}, {16, 21}, {22, 27}}));
    EXPECT_EQ(found("A.Li,A.", "B.Li,B.,li,Li"), Slices());
    EXPECT_EQ(found(",x", "y,   ,"), (Slices{{2, 2}}));
}
