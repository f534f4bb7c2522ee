#pragma once

#include <optional>

#include "host/Cell.h"

/// The Niggli cell of a lattice: the reduced one, with the shortest edges. See I. Křivý and B.
/// Gruber, Acta Cryst. A32 (1976) 297.
struct ReducedCell {
    double a, b, c;             // Å, ascending
    double alpha, beta, gamma;  // degrees
    double volume;              // Å³

    /// The reduced cell of a cell with that centring (P, A, B, C, I, F, R or H); none where there
    /// is no such cell.
    static std::optional<ReducedCell> of(const Cell& cell, char centring);
};
