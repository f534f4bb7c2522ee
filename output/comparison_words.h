#pragma once

#include <string>

#include "tasks/EntryComparison.h"

/// Where a side has no text of a field that the other has.
inline constexpr char no_text[] = "no text";

/// Why the two texts of a field differ; empty where they do not, or where one side has none.
std::string reasons_of_difference(const ComparedField& field);
/// Whether it is one that counts.
bool is_difference(Verdict verdict);
/// "no field differs", "1 field differs", "2 fields differ".
std::string count_of_differences(std::size_t count);
