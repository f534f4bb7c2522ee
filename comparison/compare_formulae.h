#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// What differs between two chemical formulae, element by element; between moieties, which are
/// paired by their composition wherever they stand, also their numbers and charges. A moiety of one
/// side alone is there 0 times on the other. A formula as a sum against moieties differs as a whole
/// where the compositions agree, and else in the totals. Numbers are left out where unknowns such
/// as "n" are in them. Counts, charges and brackets that say the same ("O" and "O1") are a matter
/// of coding. Where either is no formula, what differs between the texts.
/// O(n log n) for n characters.
std::vector<Finding> compare_formulae(const ComparedText& left, const ComparedText& right,
                                      const ComparisonPolicy& policy);
