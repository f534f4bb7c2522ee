#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "text/StringSlice.h"

/// Pairs things of two sides by one key after the other, the best first.
class KeyedPairing {
public:
    using Keys = std::vector<std::string>;
    using Partners = std::vector<std::optional<std::size_t>>;

    KeyedPairing(std::size_t left_size, std::size_t right_size)
        : partners_of_left_(left_size), partners_of_right_(right_size) {}

    /// Pairs those of one key that have no partner yet, the first with the first and so on. What
    /// has an empty key stays as it is. O(n log n) comparisons of keys.
    void pair(const Keys& left, const Keys& right);

    /// The place of each one's partner.
    /// @{
    const Partners& partners_of_left() const { return partners_of_left_; }
    const Partners& partners_of_right() const { return partners_of_right_; }
    /// @}

private:
    Partners partners_of_left_, partners_of_right_;
};

/// Where each thing of one side would stand among the ranges of the other: behind the partner of
/// the last before it that has one, or in front of all.
std::vector<unsigned int> places_among(const std::vector<StringSlice>& ranges,
                                       const KeyedPairing::Partners& partners);
