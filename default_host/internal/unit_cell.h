#pragma once

#include <gemmi/unitcell.hpp>

#include "host/Cell.h"

/// The cell as gemmi has it.
gemmi::UnitCell unit_cell(const Cell& cell);
