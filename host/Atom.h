#pragma once

#include <string>

/// An atom of the asymmetric unit.
struct Atom {
    std::string label;  ///< Of the atom's site: "C12".
    /// Fractions of the cell's edges a, b and c; not only from 0 to 1.
    /// @{
    double x, y, z;
    /// @}
};
