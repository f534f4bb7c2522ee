#pragma once

#include <string>
#include <string_view>

/// The position of the first `label` in `text`; throws std::runtime_error `error` when there is
/// none.
unsigned int find_first(const std::string& text, std::string_view label, const char* error);
