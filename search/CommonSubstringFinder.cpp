#include "search/CommonSubstringFinder.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string_view>

#include "search/internal/SuffixAutomaton.h"
#include "text/Position.h"

namespace {

constexpr char too_much_in_common[] = "the two texts have too many substrings in common";
constexpr char bad_length[] = "invalid min_match_length in CommonSubstringFinder::search";

/// The hash of a run of fixed length that slides over a string.
class RollingHash {
public:
    RollingHash(std::string_view text, unsigned int length) : text_(text), length_(length) {
        for (unsigned int i = 0; i < length; ++i) {
            value_ = value_ * factor + byte(i);
            if (i > 0) leaving_weight_ *= factor;
        }
    }

    std::uint64_t value() const { return value_; }

    /// Goes on by one character; not beyond the end.
    void slide() {
        value_ -= byte(start_) * leaving_weight_;
        value_ = value_ * factor + byte(start_ + length_);
        ++start_;
    }

private:
    static constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;

    std::uint64_t byte(unsigned int position) const {
        return static_cast<unsigned char>(text_[position]);
    }

    std::string_view text_;
    unsigned int length_;
    unsigned int start_ = 0;
    std::uint64_t value_ = 0;
    std::uint64_t leaving_weight_ = 1;
};

/// The starts in b, in chains of those whose runs have the same hash, and what covers them.
class Starts {
public:
    Starts(std::string_view b, unsigned int run_length)
        : starts_(b.size() - run_length + 1),
          chains_(std::bit_ceil(2 * starts_.size()), no_position) {
        RollingHash hash(b, run_length);
        for (unsigned int j = 0; j < starts_.size(); ++j) {
            if (j > 0) hash.slide();
            starts_[j].hash = hash.value();
            unsigned int& chain = chains_[slot_of(hash.value())];
            if (chain == no_position) chain = j;
            unsigned int& last = starts_[chain].behind;  // lent until the first match is noted
            if (last != no_position) starts_[last].next = j;
            last = j;
        }
    }

    /// The first start with that hash, and the one after `j`; no_position at the end.
    unsigned int first(std::uint64_t hash) const { return chains_[slot_of(hash)]; }
    unsigned int next(unsigned int j) const { return starts_[j].next; }

    /// Whether some match covers the start (i, j).
    bool covered(unsigned int i, unsigned int j) const { return starts_[j].a_end > i; }

    /// The first start of the chain behind the match that covers (i, j). A match that covers one i
    /// covers its whole stretch of b until i leaves it, so the way there is remembered until then.
    unsigned int next_behind_cover(unsigned int i, unsigned int j) {
        Start& start = starts_[j];
        if (start.behind_until <= i) {
            start.behind = start.next;
            while (start.behind < start.b_end) start.behind = starts_[start.behind].next;
            start.behind_until = start.a_end;
        }
        return start.behind;
    }

    /// Notes the match [., a_end) and [b_from, b_end).
    void cover(unsigned int a_end, unsigned int b_from, unsigned int b_end) {
        const unsigned int last = std::min(b_end, to_position(starts_.size()));
        for (unsigned int j = b_from; j < last; ++j) {
            if (starts_[j].a_end >= a_end) continue;
            starts_[j].a_end = a_end;
            starts_[j].b_end = b_end;
        }
    }

private:
    struct Start {
        std::uint64_t hash = 0;
        unsigned int next = no_position;
        unsigned int a_end = 0;             // the largest of the matches that cover this start,
        unsigned int b_end = 0;             // and the other end of that match
        unsigned int behind = no_position;  // next_behind_cover() while i is below behind_until
        unsigned int behind_until = 0;
    };

    /// Where the chain of that hash stands or would stand. Each has a slot of its own: a long chain
    /// must not lie in the way of others.
    std::size_t slot_of(std::uint64_t hash) const {
        auto slot = static_cast<std::size_t>(hash * 0xD6E8FEB86659FD93 >> 32);
        while (true) {
            slot &= chains_.size() - 1;
            if (chains_[slot] == no_position || starts_[chains_[slot]].hash == hash) return slot;
            ++slot;
        }
    }

    std::vector<Start> starts_;
    std::vector<unsigned int> chains_;  // the first start of each, at most every second slot
};

unsigned int common_length(std::string_view a, std::string_view b) {
    if (a.size() > b.size()) std::swap(a, b);
    return to_position(
        static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin()).first - a.begin()));
}

/// Calls report(i, j, length) for each match, the run of that length that starts at i in a and at j
/// in b. Throws std::length_error when it would compare more characters than `most_compared`.
template <class Report>
void for_each_match(std::string_view a, std::string_view b, unsigned int min_match_length,
                    std::uint64_t most_compared, Report report) {
    if (a.size() < min_match_length || b.size() < min_match_length) return;
    Starts starts(b, min_match_length);
    std::uint64_t compared = 0;
    RollingHash hash(a, min_match_length);
    const unsigned int last = length_of(a) - min_match_length;
    for (unsigned int i = 0;; ++i, hash.slide()) {
        for (unsigned int j = starts.first(hash.value()); j != no_position;) {
            if (++compared > most_compared) throw std::length_error(too_much_in_common);
            if (starts.covered(i, j)) {
                j = starts.next_behind_cover(i, j);
                continue;
            }
            const unsigned int length = common_length(a.substr(i), b.substr(j));
            if (length >= min_match_length) {  // not only the same hash
                report(i, j, length);
                compared += length;
                starts.cover(i + length, j, j + length);
            }
            j = starts.next(j);
        }
        if (i == last) return;
    }
}

void check(const std::string& a, const std::string& b, unsigned int min_match_length) {
    check_length(a);  // both throw where positions would not do
    check_length(b);
    if (min_match_length == 0) throw std::range_error(bad_length);
}

/// Adds a stretch that begins no earlier than those before it; merges it with the last where they
/// overlap.
void add_stretch(std::vector<StringSlice>& stretches, unsigned int from, unsigned int to) {
    if (stretches.empty() || from >= stretches.back().to()) {
        stretches.emplace_back(from, to);
    } else if (to > stretches.back().to()) {
        stretches.back() = StringSlice(stretches.back().from(), to);
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
    for_each_match(a, b, min_match_length, std::numeric_limits<std::uint64_t>::max(),
                   [&](unsigned int i, unsigned int j, unsigned int length) {
                       a_matches.emplace_back(i, i + length);
                       b_matches.emplace_back(j, j + length);
                   });
}

std::vector<StringSlice> CommonSubstringFinder::matched_stretches(
    const std::string& a, const std::string& b, unsigned int min_match_length,
    std::uint64_t most_compared) const {
    check(a, b, min_match_length);
    std::vector<unsigned int> furthest_end(b.size(), 0);  // of the matches that start there
    for_each_match(a, b, min_match_length, most_compared,
                   [&](unsigned int /*i*/, unsigned int j, unsigned int length) {
                       furthest_end[j] = std::max(furthest_end[j], j + length);
                   });
    std::vector<StringSlice> stretches;
    for (unsigned int j = 0; j < furthest_end.size(); ++j) {
        if (furthest_end[j] > 0) add_stretch(stretches, j, furthest_end[j]);
    }
    return stretches;
}

std::vector<StringSlice> CommonSubstringFinder::common_stretches(
    const std::string& a, const std::string& b, unsigned int min_match_length) const {
    check(a, b, min_match_length);
    const SuffixAutomaton runs_of_a(a);
    SuffixAutomaton::Match match;
    std::vector<StringSlice> stretches;
    for (unsigned int end = 1; end <= b.size(); ++end) {
        runs_of_a.read(b[end - 1], match);
        if (match.length >= min_match_length) add_stretch(stretches, end - match.length, end);
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
