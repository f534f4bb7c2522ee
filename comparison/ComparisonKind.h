#pragma once

#include <span>
#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/ComparisonPolicy.h"

/// One way to compare the texts of a field.
struct ComparisonKind {
    const char* name;           ///< One word.
    const char* help;           ///< One line, without a full stop.
    FindingReasons equivalent;  ///< What does not count unless users say otherwise.
    /// What differs, in positions of the shown texts. `policy` has the limits of numbers, and may
    /// decide between reasons that hold at once; Finding::is_equivalent is left as it is.
    std::vector<Finding> (*find)(const ComparedText& left, const ComparedText& right,
                                 const ComparisonPolicy& policy);
};

std::span<const ComparisonKind> comparison_kinds();
