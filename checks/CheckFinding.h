#pragma once

#include <optional>
#include <vector>

#include "checks/CheckCode.h"
#include "entries/Problem.h"
#include "entries/Splice.h"

/// A fault that was found.
struct CheckFinding {
    const CheckCode* code;
    Problem problem;                 ///< Where, what was found, what was expected.
    std::optional<Splice> repair{};  ///< Of the bytes of the file, where one is safe.
};

using CheckFindings = std::vector<CheckFinding>;
