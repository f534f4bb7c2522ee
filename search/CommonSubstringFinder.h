#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "text/StringSlice.h"

/// Finds the stretches that two strings have in common, byte by byte.
class CommonSubstringFinder {
public:
    /// Clears both vectors and fills them in step: entry n of each is one side of the n-th match.
    /// For each start (i, j) in ascending order of i, then j, that lies not within both sides of an
    /// earlier match: the longest common run from there on, when it has at least `min_match_length`
    /// characters. Throws std::length_error for more than 4294967294 characters and
    /// std::range_error "invalid min_match_length in CommonSubstringFinder::search" when that is 0,
    /// with both vectors as they were. O(|a| + |b| + s) on the average for matches of s characters
    /// in all.
    void search(const std::string& a, const std::string& b, std::vector<StringSlice>& a_matches,
                std::vector<StringSlice>& b_matches, unsigned int min_match_length) const;

    /// The b side of all matches, merged where they overlap and not where they only touch, in
    /// ascending order. Most matches are not looked at: O(|a| + |b|) on the average for usual
    /// texts, and where a repeats one period; what search() costs for others that are full of
    /// repetitions. Throws what search() throws, and std::length_error when it would compare more
    /// characters than `most_compared`.
    std::vector<StringSlice> matched_stretches(
        const std::string& a, const std::string& b, unsigned int min_match_length,
        std::uint64_t most_compared = std::numeric_limits<std::uint64_t>::max()) const;

    /// The b side of all common runs of at least `min_match_length` characters, merged likewise:
    /// those too that search() passes over because they begin within a match. Throws what search()
    /// throws. O(|a| + |b|).
    std::vector<StringSlice> common_stretches(const std::string& a, const std::string& b,
                                              unsigned int min_match_length) const;

    /// Whether some match has `a_pos` on its one side and `b_pos` on its other. The matches are as
    /// search() fills them, and only read. Linear in the matches.
    bool contained_in_previous_match(unsigned int a_pos, unsigned int b_pos,
                                     std::vector<StringSlice>& a_matches,
                                     std::vector<StringSlice>& b_matches) const;
};
