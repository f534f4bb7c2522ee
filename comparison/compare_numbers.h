#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// What differs between two texts with numbers: those of the same label are pairs, in their order
/// where several have it. Numbers differ within the limit when they are no further apart than the
/// policy's multiple of their combined standard uncertainty, the root of the sum of the squares;
/// or, where neither has one, than half a unit of the last place that both give; or than either
/// tolerance. What stands beside the numbers is compared as text. O(n log n).
std::vector<Finding> compare_numbers(const ComparedText& left, const ComparedText& right,
                                     const ComparisonPolicy& policy);
/// Likewise of counts, which nobody rounds: the last place allows no difference.
std::vector<Finding> compare_counts(const ComparedText& left, const ComparedText& right,
                                    const ComparisonPolicy& policy);
