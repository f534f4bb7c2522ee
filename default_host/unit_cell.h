#pragma once

#include <gemmi/unitcell.hpp>

#include "host/Cell.h"

/// The cell as gemmi has it.
[[gnu::visibility("hidden")]] gemmi::UnitCell unit_cell(const Cell& cell);
