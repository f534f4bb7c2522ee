#pragma once

#include <string_view>
#include <vector>

#include "search/internal/EqualRuns.h"

/// The positions of b where matches may start, in chains of those whose runs have the same hash,
/// and what covers them while the positions of a are gone through: its rows.
class CoveredStarts {
public:
    /// A start for each run of that length; b is not kept.
    CoveredStarts(std::string_view b, unsigned int run_length)
        : runs_(b, run_length), a_ends_(runs_.size()), covers_(runs_.size()) {}

    /// The first start with that hash, and the one after `j`; no_position at the end.
    unsigned int first(std::uint64_t hash) const { return runs_.first(hash); }
    unsigned int next(unsigned int j) const { return runs_.next(j); }

    /// Whether some match covers the start (i, j).
    bool covered(unsigned int i, unsigned int j) const { return a_ends_[j] > i; }

    /// The first start of the chain behind the match that covers (i, j). A match that covers one i
    /// covers its whole stretch of b until i leaves it, so the way there is remembered until then.
    unsigned int next_behind_cover(unsigned int i, unsigned int j);

    /// Notes the match [., a_end) and [b_from, b_end).
    void cover(unsigned int a_end, unsigned int b_from, unsigned int b_end);

    /// Makes `rows` for how many rows from i on each start is still covered.
    void get_covers(unsigned int i, std::vector<unsigned int>& rows) const;

    /// Whether that is `rows`.
    bool has_covers(unsigned int i, const std::vector<unsigned int>& rows) const;

    /// Lets all that covers row i cover as many rows more.
    void shift(unsigned int i, unsigned int rows);

private:
    struct Cover {
        unsigned int b_end = 0;             // the other end of the match that a_ends_ is of
        unsigned int behind = no_position;  // next_behind_cover() while i is below behind_until
        unsigned int behind_until = 0;
    };

    EqualRuns runs_;
    // For each start the largest end of the matches that cover it, which is asked most and stands
    // apart so that the memory near the processor holds it; and what else is known of that match.
    std::vector<unsigned int> a_ends_;
    std::vector<Cover> covers_;
};
