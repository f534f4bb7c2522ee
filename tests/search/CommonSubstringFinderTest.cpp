#include "search/CommonSubstringFinder.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "search/CommonSubstringFinderAdapter.h"
#include "tests/Random.h"
#include "text/StringSliceReducer.h"

using Matches = std::pair<std::vector<StringSlice>, std::vector<StringSlice>>;

/// Holds the search against its definition: every start in turn, and all matches before it.
static void compare_slowly(const std::string& a, const std::string& b, unsigned int min_length) {
    Matches slow, matches{{{0, 9}}, {{3, 4}, {5, 5}}};
    auto& [in_a, in_b] = slow;
    for (unsigned int i = 0; i < a.size(); ++i) {
        for (unsigned int j = 0; j < b.size(); ++j) {
            unsigned int k = 0;
            while (i + k < a.size() && j + k < b.size() && a[i + k] == b[j + k]) ++k;
            for (std::size_t n = 0; n < in_a.size() && k >= min_length; ++n) {
                if (in_a[n].contains(i) && in_b[n].contains(j)) k = 0;
            }
            if (k < min_length) continue;
            in_a.emplace_back(i, i + k);
            in_b.emplace_back(j, j + k);
        }
    }
    CommonSubstringFinder().search(a, b, matches.first, matches.second, min_length);
    ASSERT_EQ(matches, slow) << a << ' ' << b;
    const StringSliceReducer merged(in_b.begin(), in_b.end());
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
