#pragma once

#include "host/Angle.h"
#include "host/UncertainValue.h"

/// A unit cell: its edges in Å and the angles between them.
struct Cell {
    UncertainValue a, b, c;
    Angle alpha, beta, gamma;

    /// In Å³; 0 for edges and angles that no cell has.
    double volume() const;
};
