#pragma once

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "search/internal/CoveredStarts.h"
#include "search/internal/RollingHash.h"
#include "search/internal/common_length.h"

/// All matches of two texts as CommonSubstringFinder::search() defines them, row by row: those that
/// start at one position of a.
class MatchRows {
public:
    /// The texts, of which only views are kept, have `min_match_length` characters or more.
    MatchRows(std::string_view a, std::string_view b, unsigned int min_match_length,
              std::uint64_t most_compared);

    bool at_end() const { return row_ + min_match_length_ > a_.size(); }

    /// How many characters were compared.
    std::uint64_t compared() const { return compared_; }

    /// Counts characters compared; throws std::length_error when they are more than
    /// `most_compared`.
    void count(std::uint64_t characters) {
        compared_ += characters;
        if (compared_ > most_compared_) refuse();
    }

    /// Calls report(i, j, length) for each match of the next row, the run of that length that
    /// starts at i in a and at j in b; not at the end. Throws what count() throws.
    template <class Report>
    void next(Report report) {
        const unsigned int i = row_;
        for (unsigned int j = starts_.first(hash_.value()); j != no_position;) {
            count(1);
            if (starts_.covered(i, j)) {
                j = starts_.next_behind_cover(i, j);
                continue;
            }
            const unsigned int length = common_length(a_.substr(i), b_.substr(j));
            if (length >= min_match_length_) {  // not only the same hash
                count(length);
                report(i, j, length);
                longest_ = std::max(longest_, length);
                starts_.cover(i + length, j, j + length);
            }
            j = starts_.next(j);
        }
        go_on(1);
    }

    /// Passes over rows whose matches have b sides that matches of earlier rows had.
    void skip_repeated();

private:
    [[noreturn]] static void refuse();

    /// Passes over rows that repeat what came since the remembered row.
    void skip_repetitions_of(unsigned int period);
    void go_on(unsigned int rows);

    std::string_view a_;
    std::string_view b_;
    unsigned int min_match_length_;
    std::uint64_t most_compared_;
    std::uint64_t compared_ = 0;
    RollingHash hash_;  // of the run at the row
    CoveredStarts starts_;
    unsigned int row_ = 0;
    unsigned int remembered_row_ = 0;
    std::vector<unsigned int> remembered_;  // what was covered there
    unsigned int longest_ = 0;         // of the runs looked up and the matches found from there on
    unsigned int longest_period_ = 0;  // until the next row is remembered
};
