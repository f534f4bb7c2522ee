#include "search/internal/SingleMatches.h"

#include <algorithm>

#include "search/internal/RollingHash.h"
#include "search/internal/common_length.h"

namespace {

constexpr unsigned int most_depth = 30;  // of the matches that hang on one another

/// A run of this length shows that two characters stand side by side in a match.
unsigned int run_length(unsigned int min_match_length) { return std::max(min_match_length, 2U); }

/// Few texts have many runs of this length in common.
unsigned int long_run_length(unsigned int min_match_length) {
    return std::max(min_match_length, 16U);
}

}  // namespace

SingleMatches::SingleMatches(std::string_view a, std::string_view b, unsigned int min_match_length,
                             std::uint64_t most_steps)
    : a_(a),
      b_(b),
      min_match_length_(min_match_length),
      runs_of_a_(a, run_length(min_match_length)),
      runs_of_b_(run_hashes(b, run_length(min_match_length))),
      long_runs_of_a_(a, long_run_length(min_match_length)),
      long_runs_of_b_(b, long_run_length(min_match_length)),
      most_steps_(most_steps) {}

std::uint64_t SingleMatches::find(MatchStretches& stretches) {
    const unsigned int length = run_length(min_match_length_);
    std::vector<Answer> answers(runs_of_b_.size(), Answer::unknown);
    std::vector<bool> asked(runs_of_b_.size());
    unsigned int first = 0;  // that may not be asked yet
    for (unsigned int seam = 1; seam < b_.size(); ++seam) {
        // The later a run begins that goes over the seam, the more of it is new.
        for (unsigned int j = std::min(seam, to_position(runs_of_b_.size()));
             !stretches.bridged(seam) && j > first && j - 1 + length > seam;) {
            --j;
            if (asked[j]) continue;
            asked[j] = true;
            answers[j] = add_match_over(j, stretches);
        }
        if (!stretches.bridged(seam)) first = seam;
    }
    unsigned int seam = 0;
    for (unsigned int j = 0; j < asked.size(); ++j) {
        if (!asked[j] || answers[j] != Answer::unknown) continue;
        for (seam = std::max(seam, j + 1); seam < j + length; ++seam) stretches.expect(seam);
    }
    return steps_;
}

SingleMatches::Answer SingleMatches::add_match_over(unsigned int j, MatchStretches& stretches) {
    Answer answer = Answer::no;
    for (unsigned int i = runs_of_a_.first(runs_of_b_[j]); i != no_position;
         i = runs_of_a_.next(i)) {
        gave_up_ = false;
        if (!spend(1)) return Answer::unknown;
        const unsigned int length = common_length(a_.substr(i), b_.substr(j));
        if (length < run_length(min_match_length_)) continue;  // only the same hash
        const std::optional<unsigned int> before = match_before(i, j);
        if (gave_up_) {
            answer = Answer::unknown;
        } else if (before) {
            spend(*before + length);
            stretches.add(j - *before, j + length);
            return Answer::yes;
        }
    }
    return answer;
}

std::optional<unsigned int> SingleMatches::match_before(unsigned int i, unsigned int j) {
    const unsigned int length = common_length(a_.substr(i), b_.substr(j));
    unsigned int before = 0;
    while (before < std::min(i, j) && a_[i - before - 1] == b_[j - before - 1]) ++before;
    if (!spend(before + length)) return std::nullopt;
    for (++before; before-- > 0 && before + length >= min_match_length_;) {
        if (lies_free(i - before, j - before)) return before;
        if (gave_up_) return std::nullopt;
    }
    return std::nullopt;
}

bool SingleMatches::match_reaches(unsigned int i, unsigned int j, unsigned int further) {
    return spend(1) && i + further < a_.size() && j + further < b_.size() &&
           a_[i + further] == b_[j + further] && a_.substr(i, further) == b_.substr(j, further) &&
           match_before(i, j);
}

bool SingleMatches::lies_free(unsigned int i, unsigned int j) {
    if (++depth_ > most_depth) gave_up_ = true;
    // A match of another diagonal that has (i, j) within it goes from (i, j - d) or (i - d, j) as
    // far as (i + d, j) or (i, j + d): near by, or with a long run in common.
    const unsigned int length = long_run_length(min_match_length_);
    bool free = spend(length / 8);  // what is compared below takes as long
    for (unsigned int d = 1; free && d < length - 1 && d <= std::max(i, j); ++d) {
        free = !(d <= j && a_[i] == b_[j - d] && match_reaches(i, j - d, d)) &&
               !(d <= i && a_[i - d] == b_[j] && match_reaches(i - d, j, d));
    }
    if (free && i < long_runs_of_a_.size()) {
        unsigned int k = long_runs_of_b_.first(long_runs_of_a_.hash(i));
        for (; free && k < j; k = long_runs_of_b_.next(k)) {
            free = j - k < length - 1 || !match_reaches(i, k, j - k);
        }
    }
    if (free && j < long_runs_of_b_.size()) {
        unsigned int k = long_runs_of_a_.first(long_runs_of_b_.hash(j));
        for (; free && k < i; k = long_runs_of_a_.next(k)) {
            free = i - k < length - 1 || !match_reaches(k, j, i - k);
        }
    }
    --depth_;
    return free && !gave_up_;
}

bool SingleMatches::spend(std::uint64_t steps) {
    steps_ += steps;
    if (steps_ > most_steps_) gave_up_ = true;
    return !gave_up_;
}
