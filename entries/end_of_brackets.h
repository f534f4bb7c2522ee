#pragma once

#include <cstddef>
#include <string_view>

/// One past the bracket that closes the list or table at the beginning of `text`; npos where none
/// does. O(n), however deep they stand in each other.
std::size_t end_of_brackets(std::string_view text);
