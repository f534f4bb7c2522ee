#include "search/CommonSubstringFinder.h"

#include <gmock/gmock.h>

#include <algorithm>
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
    const CommonSubstringFinder finder;
    const StringSliceReducer merged(slow.second.begin(), slow.second.end());
    ASSERT_THAT(finder.matched_stretches(a, b, min_length),
                testing::UnorderedElementsAreArray(merged.slices()));
    StringSliceReducer runs;
    for (unsigned int j = 0; j < b.size(); ++j) {
        std::size_t k = b.size() - j;
        while (a.find(b.substr(j, k)) == std::string::npos) --k;
        if (k >= min_length) runs.add({j, j + static_cast<unsigned int>(k)});
    }
    ASSERT_THAT(finder.common_stretches(a, b, min_length),
                testing::UnorderedElementsAreArray(runs.slices()))
        << a << ' ' << b;
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

/// A text of `period` letters again and again, whose every so manieth one may be another.
static std::string repetition(Random& random, unsigned int length, unsigned int period,
                              unsigned int letters) {
    std::string text;
    const unsigned int slips = random() % 2 == 0 ? 0 : 1 + length / 4;
    while (text.size() < length) {
        const bool any = text.size() < period || (slips > 0 && random() % slips == 0);
        text += any ? "a\0\x80\xFF"[random() % letters] : text[text.size() - period];
    }
    return text;
}

TEST(CommonSubstringFinder, EqualsTheSlowSearchOnLongStrings) {
    Random random(1);
    for (unsigned int round = 0; round < 400; ++round) {
        const unsigned int letters = 1 + random() % 4;
        std::string strings[2];
        for (std::string& s : strings) {
            s = repetition(random, random() % 200, 1 + random() % (round % 2 == 0 ? 9 : 150),
                           letters);
        }
        compare_slowly(strings[0], strings[1], 1 + random() % 9);
        if (HasFatalFailure()) return;
    }
}

// Long enough for matches to be found otherwise than by going through all.
TEST(CommonSubstringFinder, MergesAllThatTheSearchFinds) {
    Random random(2);
    for (unsigned int round = 0; round < 50; ++round) {
        const unsigned int letters = 2 + random() % 3;
        const unsigned int longest_period = round % 3 == 0 ? 10 : 2000;
        const auto text = [&] {
            return repetition(random, 1500, 1 + random() % longest_period, letters);
        };
        const std::string a = text() + "z";  // one character that only the last row has
        const std::string b = "z#" + (round % 4 == 0 ? a.substr(random() % 50) + text() : text());
        const unsigned int min_length = 1 + random() % 6;
        const CommonSubstringFinder finder;
        std::vector<StringSlice> in_a, in_b;
        finder.search(a, b, in_a, in_b, min_length);
        std::vector<StringSlice> merged = StringSliceReducer(in_b.begin(), in_b.end()).slices();
        std::sort(merged.begin(), merged.end(),
                  [](const StringSlice& x, const StringSlice& y) { return x.from() < y.from(); });
        ASSERT_EQ(finder.matched_stretches(a, b, min_length), merged) << round;
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

TEST(CommonSubstringFinderAdapter, SpendsOnRepetitionsWhatItMay) {
    using Effort = CommonSubstringFinderAdapter::Effort;
    const auto found = [&](const std::string& term, const std::string& text, Effort effort) {
        std::vector<StringSlice> slices;
        CommonSubstringFinderAdapter({0, ""}, 2, term, effort).search(text, slices);
        return slices.size();
    };
    std::string ab, abc, runs;
    Random random(1);
    for (unsigned int n = 0; n < 20000; ++n) {
        ab += "ab";
        abc += "abc";
        runs.append(1 + random() % 3, 'a').append("b");
    }
    EXPECT_EQ(found(ab, abc, Effort::limited), 20000U);
    EXPECT_EQ(found(ab, abc, Effort::linear), 20000U);
    EXPECT_THROW(found(runs, ab, Effort::limited), std::length_error);
    std::vector<StringSlice> slices;
    CommonSubstringFinderAdapter({0, ""}, 3, "abab", Effort::linear).search("ababab", slices);
    EXPECT_EQ(slices, (std::vector<StringSlice>{{0, 6}}));  // the matches alone: {0, 4}
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
