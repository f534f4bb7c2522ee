#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// What differs between two lists of people, name by name. People of one surname are paired, those
/// with the same initials first, then those with more or fewer, then those with other ones; as few
/// as possible are moved. Who is moved and is written otherwise gives the one finding that counts
/// by the policy, of two the latter. Where either text has no names, what differs between the
/// texts. O(n log n) for n characters.
std::vector<Finding> compare_authors(const ComparedText& left, const ComparedText& right,
                                     const ComparisonPolicy& policy);
