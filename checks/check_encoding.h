#pragma once

#include "checks/FoundFaults.h"
#include "entries/CifDocument.h"

/// Finds values that are not UTF-8, or not of ASCII as the first version of CIF wants it.
void check_encoding(const CifDocument& document, FoundFaults& findings);
