#include "text/StringSlice.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>

#include "text/Position.h"

namespace {

// Callers show and match these texts: their wording is interface.
constexpr char bad_length[] = "length of StringSlice error";
constexpr char bad_position[] = "position of StringSlice error";

}  // namespace

StringSlice::StringSlice(unsigned int from, unsigned int to) : from_(from), to_(to) {
    if (to < from) throw std::range_error(bad_length);
    if (to == no_position) throw std::range_error(bad_position);  // from is not above it
}

bool StringSlice::has_subset(const StringSlice& other) const {
    return !empty() && !other.empty() && from_ <= other.from_ && other.to_ <= to_;
}

bool StringSlice::has_proper_subset(const StringSlice& other) const {
    return has_subset(other) && *this != other;
}

bool StringSlice::overlaps(const StringSlice& other) const {
    return !empty() && !other.empty() && from_ < other.to_ && other.from_ < to_;
}

bool StringSlice::are_subsets(const StringSlice& other) const {
    return has_subset(other) || other.has_subset(*this);
}

bool StringSlice::partial_intersection(const StringSlice& other) const {
    return overlaps(other) && !are_subsets(other);
}

StringSlice StringSlice::combine(const StringSlice& other) const {
    if (other.empty()) return *this;
    if (empty()) return other;
    return {std::min(from_, other.from_), std::max(to_, other.to_)};
}

void StringSlice::print(std::ostream& os) const { os << from_ << ' ' << to_; }

std::ostream& operator<<(std::ostream& os, const StringSlice& slice) {
    slice.print(os);
    return os;
}
