#pragma once

#include "checks/FoundFaults.h"
#include "entries/CifDocument.h"

/// Finds names of people and substances that are spelt otherwise in a block before.
void check_spellings(const CifDocument& document, FoundFaults& findings);
