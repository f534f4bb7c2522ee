#pragma once

#include "host/Angle.h"
#include "host/UncertainValue.h"

/// A unit cell. Nothing says that its edges and angles fit each other.
struct Cell {
    /// The edges, in Å.
    /// @{
    UncertainValue a, b, c;
    /// @}
    /// The angles between b and c, a and c, a and b.
    /// @{
    Angle alpha, beta, gamma;
    /// @}

    /// In Å³; 0 for edges and angles that no cell has.
    double volume() const;
};
