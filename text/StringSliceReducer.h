#pragma once

#include <vector>

#include "text/StringSlice.h"

/// Merges overlapping slices: the slices it holds never overlap, but may touch.
class StringSliceReducer {
public:
    StringSliceReducer() = default;
    /// Starts with the slices of an iterator range.
    template <class Iterator>
    StringSliceReducer(Iterator first, Iterator last) {
        add(first, last);
    }

    /// The merged slices. Their order carries no meaning.
    const std::vector<StringSlice>& slices() const { return slices_; }
    /// The number of positions that all the slices added so far cover together.
    int total_length() const;

    /// Merges `s` with the held slices that it overlaps; an empty slice changes nothing. O(k) for k
    /// held slices, O(log k) when `s` lies behind them.
    void add(const StringSlice& s);
    /// Adds each slice of an iterator range; O(k log k) for k slices, added and held.
    template <class Iterator>
    void add(Iterator first, Iterator last) {
        slices_.insert(slices_.end(), first, last);
        reduce();
    }

private:
    /// Restores what holds between calls: no empty slices, no overlaps, ascending positions.
    void reduce();

    std::vector<StringSlice> slices_;
};
