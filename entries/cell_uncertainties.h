#pragma once

#include <array>

#include "host/Cell.h"

// How far what is computed from a cell may be wrong: one standard uncertainty, to first order (see
// ISO/IEC Guide 98-3, 5.1). Edges or angles that agree in value and uncertainty are taken for one
// measurement, as symmetry makes them; others for independent ones.

/// That of Cell::volume(), in Å³; 0 where the cell has none or its parameters have none.
double volume_uncertainty(const Cell& cell);

/// Those of a, b, c, in Å, and of alpha, beta, gamma, in degrees, of the reduced cell of a cell
/// with that centring, likewise; 0 for all where there is no reduced cell.
std::array<double, 6> reduced_cell_uncertainties(const Cell& cell, char centring);
