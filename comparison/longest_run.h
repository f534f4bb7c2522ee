#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

/// Which of these distinct places are of a longest run that ascends; among equally long ones the
/// places with the smaller names are taken, so that the inverse order has the same run where no two
/// names are equal. O(n log n).
std::vector<bool> longest_ascending_run(const std::vector<std::size_t>& places,
                                        const std::vector<std::string_view>& names);
