#pragma once

#include <algorithm>
#include <string_view>

#include "text/Position.h"

/// How many characters two texts have in common from their begin on.
inline unsigned int common_length(std::string_view a, std::string_view b) {
    if (a.size() > b.size()) std::swap(a, b);
    return to_position(
        static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin()).first - a.begin()));
}
