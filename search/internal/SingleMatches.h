#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "search/internal/EqualRuns.h"
#include "search/internal/MatchStretches.h"

/// Decides of single runs that two texts have in common whether they are matches as
/// CommonSubstringFinder::search() defines them, without finding all those before: what may have a
/// start within it begins near by or has a long run in common, and so on from there. In usual texts
/// that is little; of one that repeats itself it may be too much.
class SingleMatches {
public:
    /// Keeps views of the texts. Gives up after about so many steps.
    SingleMatches(std::string_view a, std::string_view b, unsigned int min_match_length,
                  std::uint64_t most_steps);

    /// Adds such matches that each two characters which stand side by side in some match do so in
    /// those; where it has to give up, the stretches expect more. Returns how many steps it made.
    std::uint64_t find(MatchStretches& stretches);

private:
    enum class Answer { no, yes, unknown };

    /// Adds a match that has the whole run of b at `j` on its b side, if there is one.
    Answer add_match_over(unsigned int j, MatchStretches& stretches);

    /// Looks on the diagonal of a[i] and b[j], which are the same, for a match that begins there or
    /// earlier, and returns how many characters earlier.
    std::optional<unsigned int> match_before(unsigned int i, unsigned int j);

    /// Whether no match of another diagonal has (i, j) within both its sides. `false` too when it
    /// gives up, as all of these.
    bool lies_free(unsigned int i, unsigned int j);

    /// Whether a match has a[i] beside b[j], and as many more characters behind them.
    bool match_reaches(unsigned int i, unsigned int j, unsigned int further);

    /// Counts steps, and gives up when there are too many; whether it goes on.
    bool spend(std::uint64_t steps);

    std::string_view a_;
    std::string_view b_;
    unsigned int min_match_length_;
    EqualRuns runs_of_a_;
    std::vector<std::uint64_t> runs_of_b_;  // their hashes
    EqualRuns long_runs_of_a_;
    EqualRuns long_runs_of_b_;
    std::uint64_t most_steps_;
    std::uint64_t steps_ = 0;
    unsigned int depth_ = 0;
    bool gave_up_ = false;
};
