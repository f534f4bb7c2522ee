#include "default_host/internal/unit_cell.h"

gemmi::UnitCell unit_cell(const Cell& cell) {
    return {cell.a.value,
            cell.b.value,
            cell.c.value,
            cell.alpha.degrees.value,
            cell.beta.degrees.value,
            cell.gamma.degrees.value};
}
