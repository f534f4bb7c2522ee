#pragma once

#include "checks/FoundFaults.h"
#include "entries/CifDocument.h"

/// Finds what may be wrong in names, titles and sentences: codes, marks, brackets, blanks.
void check_prose(const CifDocument& document, FoundFaults& findings);
