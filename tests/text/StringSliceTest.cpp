#include "text/StringSlice.h"

#include <gmock/gmock.h>

#include <sstream>
#include <stdexcept>

#include "text/ColorSlice.h"
#include "text/GreekSlice.h"
#include "text/ReplacementTextSlice.h"

using testing::StrEq;
using testing::ThrowsMessage;

namespace {

template <class Slice>
std::string printed(const Slice& slice) {
    std::ostringstream os;
    os << slice;
    return os.str();
}

}  // namespace

TEST(StringSlice, RefusesAReversedRangeAndNoPosition) {
    const auto bad_length = ThrowsMessage<std::range_error>(StrEq("length of StringSlice error"));
    const auto bad_position =
        ThrowsMessage<std::range_error>(StrEq("position of StringSlice error"));
    EXPECT_THAT([] { StringSlice(5, 4); }, bad_length);
    EXPECT_THAT([] { StringSlice(4294967295U, 4); }, bad_length);
    EXPECT_THAT([] { StringSlice(0, 4294967295U); }, bad_position);
    EXPECT_THAT([] { ColorSlice(2, 1, TextItem::red); }, bad_length);
    EXPECT_THAT([] { GreekSlice(2, 4294967295U, TextItem::pi); }, bad_position);
    EXPECT_THAT([] { ReplacementTextSlice(2, 1, "x"); }, bad_length);
}

TEST(StringSlice, PrintsItsRangeAndWhatStandsThere) {
    EXPECT_EQ(printed(ColorSlice(3, 7, TextItem::blue)), "3 7 2");
    EXPECT_EQ(printed(GreekSlice(0, 5, TextItem::alpha)), "0 5 1");
}

// Every relation against its definition by sets of positions, for all pairs of short slices.
TEST(StringSlice, RelationsAreThoseOfPositionSets) {
    constexpr unsigned int n = 5;
    const auto positions = [](const StringSlice& s) {
        unsigned int set = 0;
        for (unsigned int p = 0; p < n; ++p) set |= s.contains(p) ? 1U << p : 0U;
        return set;
    };
    std::vector<StringSlice> slices;
    for (unsigned int from = 0; from <= n; ++from) {
        for (unsigned int to = from; to <= n; ++to) slices.emplace_back(from, to);
    }
    for (const StringSlice& a : slices) {
        for (const StringSlice& b : slices) {
            SCOPED_TRACE(printed(a) + " and " + printed(b));
            const unsigned int in_a = positions(a);
            const unsigned int in_b = positions(b);
            const bool subset = in_b != 0 && (in_a & in_b) == in_b;
            const bool crossing = (in_a & in_b) != 0 && (in_a & ~in_b) != 0 && (in_b & ~in_a) != 0;
            EXPECT_EQ(a.overlaps(b), (in_a & in_b) != 0);
            EXPECT_EQ(a.has_subset(b), subset);
            EXPECT_EQ(a.has_proper_subset(b), subset && in_a != in_b);
            EXPECT_EQ(a.are_subsets(b), a.has_subset(b) || b.has_subset(a));
            EXPECT_EQ(a.partial_intersection(b), crossing);
            const StringSlice hull = a.combine(b);
            EXPECT_EQ(positions(hull) & (in_a | in_b), in_a | in_b);
            EXPECT_EQ(hull, b.empty()   ? a
                            : a.empty() ? b
                                        : StringSlice(std::min(a.from(), b.from()),
                                                      std::max(a.to(), b.to())));
        }
    }
}
