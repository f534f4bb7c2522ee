#pragma once

#include <optional>

#include "host/Cell.h"

/// The Niggli cell of a lattice: the reduced one, with the shortest edges. See I. Křivý and B.
/// Gruber, Acta Cryst. A32 (1976) 297.
struct ReducedCell {
    /// The edges, in Å, ascending.
    /// @{
    double a, b, c;
    /// @}
    /// The angles between b and c, a and c, a and b, in degrees.
    /// @{
    double alpha, beta, gamma;
    /// @}
    double volume;  ///< In Å³.

    /// The reduced cell of a cell with that centring (P, A, B, C, I, F, R or H); none where
    /// Cell::volume() is 0. The default host throws std::runtime_error for any other centring.
    static std::optional<ReducedCell> of(const Cell& cell, char centring);
};
