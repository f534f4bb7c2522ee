#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "text/Position.h"

/// The runs of one length in a text, in chains of those with the same hash: all that are equal and,
/// seldom, others. Building is O(n) on the average.
class EqualRuns {
public:
    /// No runs when `text`, which is not kept, is shorter than `length`, which is not 0.
    EqualRuns(std::string_view text, unsigned int length);

    unsigned int size() const { return static_cast<unsigned int>(next_.size()); }
    std::uint64_t hash(unsigned int start) const { return hashes_[start]; }

    /// Where the first run with that hash starts; no_position: nowhere.
    unsigned int first(std::uint64_t hash) const { return chains_[slot_of(hash)]; }

    /// Where the next run with the hash of that at `start` starts; no_position: nowhere.
    unsigned int next(unsigned int start) const { return next_[start]; }

private:
    /// Where the chain of that hash stands or would stand. Each has a slot of its own: a long chain
    /// must not lie in the way of others.
    std::size_t slot_of(std::uint64_t hash) const;

    std::vector<std::uint64_t> hashes_;
    std::vector<unsigned int> next_;
    std::vector<unsigned int> chains_;  // the first run of each, at most every second slot
};
