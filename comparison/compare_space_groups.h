#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// What differs between two space-group symbols: the group, its setting or the notation, as one
/// finding whose numbers are those of the groups, 1 to 230. The bar of an inversion axis may stand
/// over its number. What a symbol leaves open, such as the axis in "P21/c", agrees with what the
/// other one says. Where either is of no known group, what differs between the texts.
std::vector<Finding> compare_space_groups(const ComparedText& left, const ComparedText& right,
                                          const ComparisonPolicy& policy);
