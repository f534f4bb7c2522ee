#pragma once

#include <string>

#include "host/UncertainValue.h"

/// "1.30" of 1.2951 with 2 decimals.
std::string in_decimals(double value, int decimals);

/// Half a unit of the last place, in which a number is rounded.
double half_a_unit(const UncertainValue& number);
