#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// What differs between two literature references, part by part. A journal may be abbreviated or
/// written otherwise. A last page may be shortened to the digits that differ from the first, or
/// left out where it is the first: that is a matter of coding. Where either text is no reference,
/// what differs between the texts. Linear in the lengths.
std::vector<Finding> compare_references(const ComparedText& left, const ComparedText& right,
                                        const ComparisonPolicy& policy);
