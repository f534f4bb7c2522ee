#pragma once

#include <vector>

#include "text/StringSlice.h"

/// Merges overlapping slices: the slices it gives never overlap, but may touch.
///
/// Adding is O(1); reading after additions is O(k log k) for k slices, added and held, and merges
/// them: no two threads may read one reducer at a time.
class StringSliceReducer {
public:
    /// Starts without slices.
    StringSliceReducer() = default;
    /// Starts with the slices of an iterator range.
    template <class Iterator>
    StringSliceReducer(Iterator first, Iterator last) {
        add(first, last);
    }

    /// The merged slices, none of them empty. Their order carries no meaning. The list is the
    /// reducer's own: the next add() changes it.
    const std::vector<StringSlice>& slices() const;
    /// The number of positions that all the slices added so far cover together.
    int total_length() const;

    /// Merges `s` with the held slices that it overlaps; an empty slice changes nothing.
    void add(const StringSlice& s);
    /// Adds each slice of an iterator range.
    template <class Iterator>
    void add(Iterator first, Iterator last) {
        for (; first != last; ++first) add(*first);
    }

private:
    mutable std::vector<StringSlice> slices_;  // none empty; merged and ascending when in order
    mutable bool in_order_ = true;
};
