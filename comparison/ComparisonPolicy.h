#pragma once

#include "comparison/Finding.h"

/// What counts when two texts of a field are compared.
struct ComparisonPolicy {
    FindingReasons equivalent;      ///< Reasons that do not count.
    double sigmas = 3;              ///< Numbers may differ by as many combined uncertainties,
    double tolerance = 0;           ///< or by as much, in their unit,
    double relative_tolerance = 0;  ///< or by as much of the larger one.

    /// Whether what differs for that reason does not count.
    bool allows(Finding::Reason reason) const {
        return equivalent.test(static_cast<std::size_t>(reason));
    }
};
