#include "search/MultipleLineTextComparison.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <stdexcept>

#include "host/split.h"
#include "search/EntireTextComparison.h"
#include "tests/Random.h"

using Slices = std::vector<StringSlice>;

namespace {

/// A short cut for the class that it comes from must not pass it by.
class RecordingSearch : public EntireTextComparison {
public:
    bool comparison_search(const std::string& a, const std::string& b, Slices& out) const override {
        calls.push_back(a + '|' + b);
        out.emplace_back(a.empty() ? 0 : 1, b.empty() ? 0 : 3);  // throws for "term" in ""
        return b != "false";
    }

    mutable std::vector<std::string> calls;
};

}  // namespace

TEST(MultipleLineTextComparison, AddsWhatTheLineSearchFindsForEachPairOfLines) {
    const auto line_search = make_handle<RecordingSearch>();
    const MultipleLineTextComparison search(line_search), none(nullptr);
    Slices slices{{7, 9}};
    EXPECT_FALSE(search.comparison_search("\nterm", "line\nfalse\nend\r", slices));
    EXPECT_THAT(line_search->calls, testing::ElementsAre("|line", "term|line", "|false",
                                                         "term|false", "|end\r", "term|end\r"));
    EXPECT_THROW(search.comparison_search("term", "line\n", slices), std::range_error);
    EXPECT_THAT([&] { none.comparison_search("", "", slices); },
                testing::ThrowsMessage<std::runtime_error>("null handle error"));
    std::sort(slices.begin() + 1, slices.end(), [](auto& a, auto& b) { return a.to() < b.to(); });
    EXPECT_EQ(slices, (Slices{{7, 9}, {0, 3}, {11, 14}}));
}

TEST(MultipleLineTextComparison, FindsTheLinesThatStandInTheTerm) {
    const char* const pieces[] = {"a", "b", "ab", "\n", "\n", "\r\n"};
    const auto entire = make_handle<EntireTextComparison>();
    Random random(1);
    for (int round = 0; round < 3000; ++round) {
        const auto term = random_text(random, pieces, 7), text = random_text(random, pieces, 7);
        const auto terms = split(term, "\n", StringFunctionParameters::keep_blank_fields);
        Slices slices, expected;
        unsigned int begin = 0;
        for (const auto& line : split(text, "\n", StringFunctionParameters::keep_blank_fields)) {
            const unsigned int end = begin + static_cast<unsigned int>(line.size());
            const bool found = std::count(terms.begin(), terms.end(), line) > 0;
            if (found && begin < end) expected.emplace_back(begin, end);
            begin = end + 1;
        }
        entire->set_search_term("?");
        const bool equal = MultipleLineTextComparison(entire).comparison_search(term, text, slices);
        EXPECT_EQ(equal, term == text && !text.empty()) << term << " in " << text;
        ASSERT_THAT(slices, testing::UnorderedElementsAreArray(expected)) << term << " in " << text;
        EXPECT_EQ(entire->search(terms.back(), slices), !terms.back().empty());
        EXPECT_FALSE(entire->search("?", slices));
    }
}
