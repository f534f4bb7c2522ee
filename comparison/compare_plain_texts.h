#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// What differs between two texts of any kind.
std::vector<Finding> compare_plain_texts(const ComparedText& left, const ComparedText& right,
                                         const ComparisonPolicy& policy);
/// Likewise between a range of the one and a range of the other, of the shown texts.
void compare_plain_texts(const ComparedText& left, const StringSlice& left_range,
                         const ComparedText& right, const StringSlice& right_range,
                         const ComparisonPolicy& policy, std::vector<Finding>& findings);
