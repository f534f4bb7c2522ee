#pragma once

#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonKind.h"
#include "comparison/ComparisonPolicy.h"

/// Two texts of a field, compared.
struct TextComparison {
    /// O(n + m log m) for n characters and m things that differ; where the least that differs would
    /// cost more to find, a coarser finding says so. The kind's own way is taken where the texts
    /// have what it looks for, else the way of plain texts. Comparing the same two the other way
    /// round gives the mirrored findings.
    TextComparison(const ComparedText& left, const ComparedText& right, const ComparisonKind& kind,
                   const ComparisonPolicy& policy);

    /// Equal exactly when the texts are, equivalent when each finding is.
    Verdict verdict = Verdict::equal;
    /// What differs, in ascending order of the left ranges, then of the right ones. On either side
    /// ranges are disjoint and lie on characters; on the right they ascend but for what is moved
    /// or is paired by its name.
    std::vector<Finding> findings;
};
