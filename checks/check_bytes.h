#pragma once

#include "checks/FoundFaults.h"
#include "entries/CifDocument.h"

/// Finds lines that are too long and characters that no CIF file may hold.
void check_bytes(const CifDocument& document, FoundFaults& findings);
