#include "search/internal/MatchRows.h"

#include <stdexcept>

namespace {

constexpr char too_much_in_common[] = "the two texts have too many substrings in common";
constexpr unsigned int first_period = 16;  // shorter ones are found as a multiple of theirs

}  // namespace

MatchRows::MatchRows(std::string_view a, std::string_view b, unsigned int min_match_length,
                     std::uint64_t most_compared)
    : a_(a),
      b_(b),
      min_match_length_(min_match_length),
      most_compared_(most_compared),
      hash_(a, min_match_length),
      starts_(b, min_match_length) {}

void MatchRows::refuse() { throw std::length_error(too_much_in_common); }

void MatchRows::skip_repeated() {
    const unsigned int period = row_ - remembered_row_;
    if (period > 0 && a_[row_] == a_[remembered_row_]) skip_repetitions_of(period);
    if (period < longest_period_) return;
    // Twice as far each time: in the end one is remembered within the repetition, and long enough.
    longest_period_ = 2 * longest_period_ + first_period;
    remembered_row_ = row_;
    starts_.get_covers(row_, remembered_);
    longest_ = min_match_length_;
}

void MatchRows::skip_repetitions_of(unsigned int period) {
    // Two rows that cover the same, and before the same in a: what came between them comes once
    // more, and again and again as long as no match reaches to where a goes on otherwise.
    const std::string_view from_there = a_.substr(remembered_row_);
    const std::string_view from_here = a_.substr(row_);
    const unsigned int needed = longest_ + period;
    if (from_here.size() < needed || from_here.substr(0, needed) != from_there.substr(0, needed) ||
        !starts_.has_covers(row_, remembered_)) {
        return;
    }
    const unsigned int alike = common_length(from_there, from_here);
    const unsigned int rows = (alike - longest_) / period * period;
    starts_.shift(row_, rows);
    go_on(rows);
    longest_period_ = 0;  // what comes now may be repeated otherwise
}

void MatchRows::go_on(unsigned int rows) {
    for (; rows > 0; --rows, ++row_) {
        if (row_ + min_match_length_ < a_.size()) hash_.slide();
    }
}
