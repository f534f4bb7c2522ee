#include "search/CommonSubstringFinder.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "search/CommonSubstringFinderAdapter.h"
#include "tests/Random.h"
#include "tests/search/slow_matches.h"
#include "text/StringSliceReducer.h"

using Matches = std::pair<std::vector<StringSlice>, std::vector<StringSlice>>;

/// Holds the search against its definition.
static void compare_slowly(const std::string& a, const std::string& b, unsigned int min_length) {
    const Matches slow = slow_matches(a, b, min_length);
    Matches matches{{{0, 9}}, {{3, 4}, {5, 5}}};
    CommonSubstringFinder().search(a, b, matches.first, matches.second, min_length);
    ASSERT_EQ(matches, slow) << a << ' ' << b;
    const StringSliceReducer merged(slow.second.begin(), slow.second.end());
    ASSERT_THAT(CommonSubstringFinder().matched_stretches(a, b, min_length),
                testing::UnorderedElementsAreArray(merged.slices()));
}

TEST(CommonSubstringFinder, EqualsTheSlowSearchOnAllShortStrings) {
    for (const auto& [letters, count] : {std::pair("ab", 127U), std::pair("abc", 121U)}) {
        std::vector<std::string> strings{""};
        for (std::size_t n = 0; strings.size() < count; ++n) {
            for (const char c : std::string(letters)) strings.push_back(strings[n] + c);
        }
        for (unsigned int n = 0; n < 3 * count * count; ++n) {
            compare_slowly(strings[n % count], strings[n / count % count], 1 + n / count / count);
            if (HasFatalFailure()) return;
        }
    }
}

TEST(CommonSubstringFinder, EqualsTheSlowSearchOnLongStrings) {
    Random random(1);
    for (unsigned int round = 0; round < 60; ++round) {
        std::string strings[2];
        for (std::string& s : strings) {
            const unsigned int period = 1 + random() % (round % 2 == 0 ? 9 : 150);
            for (unsigned int n = random() % 200; s.size() < n;) {
                s += s.size() < period ? "a\0\x80\xFF"[random() % 4] : s[s.size() - period];
            }
        }
        compare_slowly(strings[0], strings[1], 1 + random() % 9);
    }
}

TEST(CommonSubstringFinderAdapter, MarksWhatIsCommonOnceNormalised) {
    using Result = std::pair<std::vector<StringSlice>, bool>;
    const auto found = [](const char* term, const char* text) {
        std::vector<StringSlice> slices{{8, 9}};
        const CommonSubstringFinderAdapter search({0x0C, ""}, 3, term);
        const bool result = search.search(text, slices);
        return Result(slices, result);
    };
    EXPECT_EQ(found("Na-Cl", "(Na, Cl)"), Result({{1, 7}}, false));
    EXPECT_EQ(found("abcd bcdef", "abcdef"), Result({{0, 6}}, false));
    EXPECT_EQ(found("NaCl", "nacl"), Result());
    EXPECT_EQ(found("NaCl", "NaCl"), Result({{8, 9}, {0, 4}}, true));
    EXPECT_EQ(found("(", "("), Result({{8, 9}}, false));
    EXPECT_EQ(found("NaCl", ""), Result({{8, 9}}, false));
    EXPECT_EQ(found("-", "NaCl"), Result({{8, 9}}, false));
}

TEST(CommonSubstringFinder, RefusesMatchesOfNoLengthBeforeItChangesAnything) {
    std::vector<StringSlice> in_a{{1, 4}, {5, 6}}, in_b{{3, 6}, {0, 1}};
    const CommonSubstringFinder finder;
    EXPECT_THAT([&] { finder.search("", "", in_a, in_b, 0); },
                testing::ThrowsMessage<std::range_error>(
                    "invalid min_match_length in CommonSubstringFinder::search"));
    EXPECT_TRUE(finder.contained_in_previous_match(5, 0, in_a, in_b));
    EXPECT_FALSE(finder.contained_in_previous_match(1, 0, in_a, in_b));
}
