#include "host/ReducedCell.h"

#include <gemmi/cellred.hpp>

#include "default_host/internal/unit_cell.h"

std::optional<ReducedCell> ReducedCell::of(const Cell& cell, char centring) {
    if (cell.volume() == 0) return std::nullopt;
    gemmi::GruberVector vector(unit_cell(cell), centring);
    vector.niggli_reduce();
    const gemmi::UnitCell reduced = vector.get_cell();
    return ReducedCell{reduced.a,    reduced.b,     reduced.c,     reduced.alpha,
                       reduced.beta, reduced.gamma, reduced.volume};
}
