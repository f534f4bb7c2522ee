#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entries/Splice.h"
#include "fuzz/CifReading.h"

/// A value that an edit must leave as it stands, or give a text or none.
struct ExpectedValue {
    std::optional<std::string> raw{}, text{};
};
using ExpectedValues = std::vector<ExpectedValue>;

/// A value that is missing may be written as none.
ExpectedValues as_they_are(const CifReading& reading);

/// What is read otherwise; empty where nothing is.
std::string complaint_of_values(const CifReading& after, const ExpectedValues& expected);

/// The text that our reader finds other than what is read; the document has the same items.
std::string complaint_of_texts(const CifDocument& document, const CifReading& reading);

/// What splices do, for complaints.
std::string quoted(const Splices& splices);

bool same_in_any_order(std::vector<std::string> a, std::vector<std::string> b);
