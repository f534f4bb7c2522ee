#include "text/StringSlice.h"

#include <ostream>
#include <stdexcept>

namespace {

// Callers show and match these texts: their wording is interface.
constexpr char bad_length[] = "length of StringSlice error";
constexpr char bad_position[] = "position of StringSlice error";

}  // namespace

void StringSlice::refuse() const {
    if (to_ < from_) throw std::range_error(bad_length);
    throw std::range_error(bad_position);
}

bool StringSlice::has_proper_subset(const StringSlice& other) const noexcept {
    return has_subset(other) && *this != other;
}

bool StringSlice::overlaps(const StringSlice& other) const noexcept {
    return !empty() && !other.empty() && from_ < other.to_ && other.from_ < to_;
}

bool StringSlice::are_subsets(const StringSlice& other) const noexcept {
    return has_subset(other) || other.has_subset(*this);
}

bool StringSlice::partial_intersection(const StringSlice& other) const noexcept {
    return overlaps(other) && !are_subsets(other);
}

void StringSlice::print(std::ostream& os) const { os << from_ << ' ' << to_; }

std::ostream& operator<<(std::ostream& os, const StringSlice& slice) {
    slice.print(os);
    return os;
}
