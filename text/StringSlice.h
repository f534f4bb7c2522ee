#pragma once

#include <algorithm>
#include <compare>
#include <iosfwd>

#include "text/Position.h"

/// A half-open range [from, to) of character positions of one string. An empty slice (from equal
/// to to) is legal, but neither overlaps nor contains anything and is contained in nothing.
class StringSlice {
public:
    /// Throws std::range_error: "length of StringSlice error" when to < from, else "position of
    /// StringSlice error" when either is 4294967295, the value for no position.
    StringSlice(unsigned int from, unsigned int to) : from_(from), to_(to) {
        if (to < from || to == no_position) refuse();
    }

    unsigned int from() const noexcept { return from_; }          ///< The first position.
    unsigned int to() const noexcept { return to_; }              ///< One past the last position.
    bool empty() const noexcept { return from_ == to_; }          ///< Whether it holds no position.
    unsigned int length() const noexcept { return to_ - from_; }  ///< How many positions it holds.

    /// Whether every position of `other` is one of this slice; false when either is empty.
    bool has_subset(const StringSlice& other) const noexcept {
        return !empty() && !other.empty() && from_ <= other.from_ && other.to_ <= to_;
    }
    /// has_subset() without equality.
    bool has_proper_subset(const StringSlice& other) const noexcept;
    /// Whether `pos` is one of its positions; `to()` is not.
    bool contains(unsigned int pos) const noexcept { return from_ <= pos && pos < to_; }
    /// Whether the two share a position; slices that only touch do not.
    bool overlaps(const StringSlice& other) const noexcept;
    /// Whether one of the two has the other as its subset.
    bool are_subsets(const StringSlice& other) const noexcept;
    /// Whether the two cross: they overlap, and each holds a position that the other lacks.
    bool partial_intersection(const StringSlice& other) const noexcept;

    /// The smallest slice over both, with the gap between them; an empty one adds nothing.
    [[nodiscard]] StringSlice combine(const StringSlice& other) const noexcept {
        if (other.empty()) return *this;
        if (empty()) return other;
        return {std::min(from_, other.from_), std::max(to_, other.to_)};
    }

    /// Writes from, a blank and to: "3 7".
    void print(std::ostream& os) const;

    /// By from, then by to.
    friend std::strong_ordering operator<=>(const StringSlice&, const StringSlice&) = default;
    friend bool operator==(const StringSlice&, const StringSlice&) = default;

private:
    /// Throws what the constructor throws.
    [[noreturn]] void refuse() const;

    unsigned int from_;
    unsigned int to_;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const StringSlice& slice);
