#pragma once

#include <string>

#include "checks/CheckSummary.h"

/// A table of the codes that were found.
/// @{
std::string summary_as_text(const CheckSummary& summary);
std::string summary_as_json(const CheckSummary& summary);
/// @}
