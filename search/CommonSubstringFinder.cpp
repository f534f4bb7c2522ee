#include "search/CommonSubstringFinder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "search/internal/MatchRows.h"
#include "search/internal/MatchStretches.h"
#include "search/internal/SingleMatches.h"
#include "search/internal/SuffixAutomaton.h"
#include "text/Position.h"

namespace {

constexpr char bad_length[] = "invalid min_match_length in CommonSubstringFinder::search";

// What is compared, for each character of both texts, before another way is tried.
constexpr std::uint64_t share_of_rows = 2;
constexpr std::uint64_t least_of_rows = 10'000;
constexpr std::uint64_t share_of_single_matches = 4;

void check(const std::string& a, const std::string& b, unsigned int min_match_length) {
    check_length(a);  // both throw where positions would not do
    check_length(b);
    if (min_match_length == 0) throw std::range_error(bad_length);
}

/// Whether there may be matches at all.
bool long_enough(const std::string& a, const std::string& b, unsigned int min_match_length) {
    return std::min(a.size(), b.size()) >= min_match_length;
}

/// Adds each character of b that stands in a: there a match begins, or one has it within.
void add_characters(const std::string& a, const std::string& b, MatchStretches& stretches) {
    std::array<bool, 256> in_a{};
    for (const char c : a) in_a[static_cast<unsigned char>(c)] = true;
    for (unsigned int j = 0; j < b.size(); ++j) {
        if (in_a[static_cast<unsigned char>(b[j])]) stretches.add(j, j + 1);
    }
}

}  // namespace

void CommonSubstringFinder::search(const std::string& a, const std::string& b,
                                   std::vector<StringSlice>& a_matches,
                                   std::vector<StringSlice>& b_matches,
                                   unsigned int min_match_length) const {
    check(a, b, min_match_length);
    a_matches.clear();
    b_matches.clear();
    if (!long_enough(a, b, min_match_length)) return;
    MatchRows rows(a, b, min_match_length, std::numeric_limits<std::uint64_t>::max());
    while (!rows.at_end()) {
        rows.next([&](unsigned int i, unsigned int j, unsigned int length) {
            a_matches.emplace_back(i, i + length);
            b_matches.emplace_back(j, j + length);
        });
    }
}

std::vector<StringSlice> CommonSubstringFinder::matched_stretches(
    const std::string& a, const std::string& b, unsigned int min_match_length,
    std::uint64_t most_compared) const {
    check(a, b, min_match_length);
    if (!long_enough(a, b, min_match_length)) return {};
    MatchStretches stretches(b);
    MatchRows rows(a, b, min_match_length, most_compared);
    const auto find_until = [&](const auto& enough) {
        while (!rows.at_end() && !enough()) {
            rows.skip_repeated();
            rows.next([&](unsigned int /*i*/, unsigned int j, unsigned int length) {
                stretches.add(j, j + length);
            });
        }
    };
    // Texts that have little in common, or repeat the same again and again, need no more than this.
    const std::uint64_t length = a.size() + b.size();
    find_until([&] { return rows.compared() > least_of_rows + share_of_rows * length; });
    if (!rows.at_end()) {
        stretches.watch_seams();
        SingleMatches matches(a, b, min_match_length, share_of_single_matches * length);
        rows.count(matches.find(stretches));
        find_until([&] { return stretches.complete(); });
    }
    if (min_match_length == 1) add_characters(a, b, stretches);
    return stretches.slices();
}

std::vector<StringSlice> CommonSubstringFinder::common_stretches(
    const std::string& a, const std::string& b, unsigned int min_match_length) const {
    check(a, b, min_match_length);
    const SuffixAutomaton runs_of_a(a);
    SuffixAutomaton::Match match;
    std::vector<StringSlice> stretches;
    for (unsigned int end = 1; end <= b.size(); ++end) {
        runs_of_a.read(b[end - 1], match);
        if (match.length >= min_match_length)
            MatchStretches::append(stretches, end - match.length, end);
    }
    return stretches;
}

bool CommonSubstringFinder::contained_in_previous_match(unsigned int a_pos, unsigned int b_pos,
                                                        std::vector<StringSlice>& a_matches,
                                                        std::vector<StringSlice>& b_matches) const {
    for (std::size_t n = 0; n < a_matches.size(); ++n) {
        if (a_matches[n].contains(a_pos) && b_matches[n].contains(b_pos)) return true;
    }
    return false;
}
