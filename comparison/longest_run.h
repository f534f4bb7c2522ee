#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// Which places of a permutation of 0, 1, 2 and so on are of a longest run that ascends. Among
/// equally long ones those are taken that are the nearest to where they would be in order, and then
/// those with the smaller names: so the inverse has the same run unless names are equal.
/// O(n log n).
std::vector<bool> longest_ascending_run(const std::vector<std::size_t>& places,
                                        const std::vector<std::string_view>& names);
