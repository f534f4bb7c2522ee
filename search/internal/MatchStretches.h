#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "text/StringSlice.h"

/// The stretches of a text that matches cover, gathered in any order.
class MatchStretches {
public:
    explicit MatchStretches(std::string_view text) : ends_(text.size()) {}

    /// Adds the match [from, to). O(1), and O(to - from) once the seams are watched.
    void add(unsigned int from, unsigned int to) {
        ends_[from] = std::max(ends_[from], to);
        if (!seams_.empty()) bridge(from, to);
    }

    /// Makes ready for what is asked about the seams between two characters. O(n).
    void watch_seams();

    /// Whether some match holds both the character before `position` and that at it.
    bool bridged(unsigned int position) const { return seams_[position] == Seam::bridged; }

    /// Says that a match yet to be found may bridge `position`.
    void expect(unsigned int position);

    /// Whether all that was expected is there.
    bool complete() const { return expected_ == 0; }

    /// Merged where they overlap and not where they only touch, in ascending order.
    std::vector<StringSlice> slices() const;

    /// Appends a stretch that begins no earlier than the last one; merges the two likewise.
    static void append(std::vector<StringSlice>& slices, unsigned int from, unsigned int to);

private:
    enum class Seam : unsigned char { open, expected, bridged };

    void bridge(unsigned int from, unsigned int to);

    std::vector<unsigned int> ends_;  // the furthest of the matches that start there, or 0
    std::vector<Seam> seams_;         // between the character before and that at each position
    std::size_t expected_ = 0;
};
