#pragma once

#include <string_view>

#include "entries/CifDocument.h"

/// Where the text of a value goes on in its bytes behind `before`, the front of that text on one
/// line, as one_line() makes it. O(n) for the length of the front.
const char* place_in_value(const CifValue& value, std::string_view before);
