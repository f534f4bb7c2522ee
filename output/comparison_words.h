#pragma once

#include <string>

#include "tasks/ComparisonSummary.h"
#include "tasks/EntryComparison.h"

/// Where a side has no text of a field that the other has.
inline constexpr char no_text[] = "no text";

/// Why the two texts of a field differ; empty where they do not, or where one side has none.
std::string reasons_of_difference(const ComparedField& field);
/// Whether it is one that counts.
bool is_difference(Verdict verdict);
/// "no field differs", "1 field differs", "2 fields differ".
std::string count_of_differences(std::size_t count);
/// "1 field is equal", "2 fields are equal", and what is said behind it.
std::string count_of_equals(std::size_t count, const char* where);
/// Whether a field is equal in all entries that have it.
bool is_equal_everywhere(const ComparisonSummary::Counts& counts);
/// The names of the left and the right one, or the name that both have.
std::string both(const std::string& left, const std::string& right);
