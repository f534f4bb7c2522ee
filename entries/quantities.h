#pragma once

#include <string>
#include <string_view>

#include "host/Cell.h"

// How the values of CIF files are shown and checked.

/// The text with the unit behind it where it is a number or a range of numbers, such as "367-370";
/// as it stands where it says more: "230 C (dec.)".
std::string with_unit(std::string text, std::string_view unit);

/// How far a measured volume of the cell may be from Cell::volume(), which both are in Å³.
double volume_tolerance(const Cell& cell, const UncertainValue& measured);
