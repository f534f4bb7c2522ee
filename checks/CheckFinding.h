#pragma once

#include <optional>
#include <vector>

#include "checks/CheckCode.h"
#include "entries/Problem.h"
#include "entries/Splice.h"

/// Where bytes of a file stand for those who count characters, lines and columns from 1.
struct FileRegion {
    unsigned long line = 1, column = 1;
    unsigned long end_line = 1, end_column = 1;  ///< One past the last character.
};

/// A fault that was found.
struct CheckFinding {
    const CheckCode* code;
    Problem problem;                 ///< Where, what was found, what was expected.
    std::optional<Splice> repair{};  ///< Of the bytes of the file, where one is safe.
    unsigned long count = 1;         ///< Above 1 it stands for so many that are not told.
    /// Of the first character of what was found, and of what the repair replaces.
    /// @{
    FileRegion region{};
    FileRegion repaired_region{};
    /// @}
};

using CheckFindings = std::vector<CheckFinding>;
