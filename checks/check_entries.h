#pragma once

#include "checks/FoundFaults.h"
#include "checks/WantedChecks.h"
#include "entries/EntryReader.h"

/// What is wrong with a CIF file and the entries in it, in the order of the file; of what entries
/// have in common once. Of each code there are up to `most` findings and one that stands for the
/// others.
CheckFindings check_entries(const EntryReader& entries, const WantedChecks& wanted = {},
                            std::size_t most = FoundFaults::most_told);

/// Why a file is no CIF file.
CheckFinding finding_of(const CifError& error);

/// The repairs of findings that can be done at once: of those that touch each other the first.
Splices repairs_of(const CheckFindings& findings);
