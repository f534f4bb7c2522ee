#pragma once

#include <span>
#include <string>

#include "tasks/ComparisonSummary.h"

/// Whether any entry has the field that they count.
bool has_any(const ComparisonSummary::Counts& counts);
/// How many pairs and fields there are of each verdict, as a table in plain text; a row for each of
/// the fields, which were compared, that some entry has.
std::string summary_as_text(const ComparisonSummary& summary, std::span<const Field> compared);
/// The same as an object of JSON.
std::string summary_as_json(const ComparisonSummary& summary, std::span<const Field> compared);
