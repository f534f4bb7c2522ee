#pragma once

#include <optional>
#include <string_view>
#include <vector>

/// What the sum formula of an entry says of one formula unit.
struct FormulaUnit {
    struct Atoms {
        int number;    ///< The element's, from 1.
        double count;  ///< Of its atoms.
        double doubt;  ///< How far rounding may have moved the count; 0 for a whole one.
    };

    std::vector<Atoms> atoms;  ///< One element or more.
    double weight = 0;         ///< In u.

    /// In all atoms, and how far rounding may have moved it.
    /// @{
    double electrons() const;
    double doubt_of_electrons() const;
    /// @}
};

/// None where it is no formula, or has unknown counts or elements.
std::optional<FormulaUnit> read_formula_unit(std::string_view formula);
