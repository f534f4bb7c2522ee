#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "entries/BlockReader.h"
#include "host/Cell.h"

// How the values of CIF files are shown and checked.

/// Whether the text is a number or a range of numbers.
bool is_number_or_range(std::string_view text);
/// The text with the unit behind it where it is a number or a range of numbers, such as "367-370";
/// as it stands where it says more: "230 C (dec.)".
std::string with_unit(std::string text, std::string_view unit);

/// The number of a block that is a fraction, such as an R factor, in per cent. Doubts one above 1.
std::optional<double> read_per_cent(BlockReader& block, Tags tags);

/// How far a measured volume of the cell may be from Cell::volume(), which both are in Å³.
double volume_tolerance(const Cell& cell, const UncertainValue& measured);
