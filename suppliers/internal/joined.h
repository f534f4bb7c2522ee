#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The texts in order, with `separator` between neighbours.
std::string joined(const std::vector<std::string>& texts, std::string_view separator);
