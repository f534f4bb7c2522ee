#include "search/NumericComparison.h"

#include <gmock/gmock.h>

#include <limits>

TEST(NumericComparison, PairsNumbersByTheirOrder) {
    using Slices = std::vector<StringSlice>;
    using Result = std::pair<Slices, bool>;
    const auto found = [](auto tolerance, const std::string& term, const std::string& text,
                          Slices slices = {}) {
        const bool result = NumericComparison(tolerance).comparison_search(term, text, slices);
        return Result(slices, result);
    };
    const bool wider = std::numeric_limits<long double>::digits > 53;
    const std::string huge(400, '9'), zeros(400, '0');
    EXPECT_EQ(found(0.01, "1.23", "a = 1.234(5)"), Result({{4, 9}}, false));
    EXPECT_EQ(found(0, "5 5", "5.00000009 5.0000002"), Result({{0, 10}}, false));
    EXPECT_EQ(found(1, "1.1", "2.1"), Result({{0, 3}}, true));
    EXPECT_EQ(found(0.5, "1 2 1 2", "1.5 1.5 1.51 1.49"), Result({{0, 3}, {4, 7}}, false));
    EXPECT_EQ(found(0.1, "1.0", "1.1"), wider ? Result() : Result({{0, 3}}, true));
    EXPECT_EQ(found(0.0, "5 3", "5.00000009 3 3"), Result({{11, 12}}, false));
    EXPECT_EQ(found(0.0, "10 20", "20 10"), Result());
    EXPECT_EQ(found(0.0, "1 -2 3", "1-2+3"), Result({{0, 1}, {1, 3}, {3, 5}}, true));
    EXPECT_EQ(found(0.0, ".5 7", "- . 0.5 7."), Result({{4, 7}, {8, 10}}, true));
    EXPECT_EQ(found(0.0, "1 5 6", "1e5,6"), Result({{0, 1}, {2, 3}, {4, 5}}, true));
    EXPECT_EQ(found(0.0, "1.2 .3", "1.2.3"), Result({{0, 3}, {3, 5}}, true));
    EXPECT_EQ(found(0.0, "3", "none", {{5, 6}}), Result({{5, 6}}, false));
    EXPECT_EQ(found(0.0, "", "3", {{0, 0}}), Result());
    EXPECT_EQ(found(0.0, "3 5 6", "3 4", {{0, 0}, {5, 5}}), Result({{5, 5}, {0, 1}}, true));
    EXPECT_EQ(found(0.0, huge, std::to_string(1.7976931348623157e308)), Result({{0, 316}}, true));
    EXPECT_EQ(found(1.0, huge + " " + huge, "1 -" + huge), Result());
    EXPECT_EQ(found(0.0, "." + zeros + "1", "0"), Result({{0, 1}}, true));
    // The exact digits of the double that a stream reads, and its neighbour.
    EXPECT_EQ(found(0.0, "0.1000000000000000055511151231257827 0.10000000000000002", "0.1 0.1"),
              Result({{0, 3}}, false));
}
