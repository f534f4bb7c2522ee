#pragma once

#include <cstdint>
#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"
#include "comparison/TextUnits.h"

/// What differs between two texts of any kind.
std::vector<Finding> compare_plain_texts(const ComparedText& left, const ComparedText& right,
                                         const ComparisonPolicy& policy);
/// Likewise between a range of the one and a range of the other, of the shown texts.
void compare_plain_texts(const ComparedText& left, const StringSlice& left_range,
                         const ComparedText& right, const StringSlice& right_range,
                         const ComparisonPolicy& policy, std::vector<Finding>& findings);
/// Likewise between units that are cut already. What has keys from `opaque_key` on is compared by
/// nothing else.
inline constexpr std::uint32_t opaque_key = 0x8000'0000;
void compare_units(CutText left, CutText right, const ComparisonPolicy& policy,
                   std::vector<Finding>& findings);
