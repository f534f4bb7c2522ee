#pragma once

#include <string>
#include <string_view>

#include "checks/FoundFaults.h"
#include "entries/CifDocument.h"

/// Adds a finding of a code at a place of the bytes. Throws std::logic_error for a code that does
/// not exist.
CheckFinding& add_finding(FoundFaults& findings, const CifDocument& document, std::string_view code,
                          const char* place, std::string found, std::string expected = "");

/// Bytes of the document replaced, as a repair.
Splice splice_of(const CifDocument& document, std::string_view bytes, std::string after);
