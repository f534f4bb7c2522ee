#pragma once

#include <cstddef>
#include <vector>

#include "cli/Places.h"

/// Places in groups, of which each is worth a thread: a file, or several small ones.
class PlaceGroups {
public:
    /// With one job each place is a group.
    PlaceGroups(std::vector<Place> places, unsigned int jobs)
        : places_(std::move(places)), jobs_(jobs) {}

    std::size_t size() const { return places_.size(); }
    /// How many places have been taken.
    std::size_t taken() const { return next_; }
    bool at_end() const { return next_ == places_.size(); }
    /// Takes the next group; not to be called at the end.
    std::vector<Place> take();

private:
    std::vector<Place> places_;
    unsigned int jobs_;
    std::size_t next_ = 0;
};
