#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

/// How many bytes at the front of a text are such as the table has.
inline std::size_t size_of_run(std::string_view text, const std::array<bool, 256>& in_run) {
    const auto end = std::find_if_not(text.begin(), text.end(), [&in_run](char c) {
        return in_run[static_cast<unsigned char>(c)];
    });
    return static_cast<std::size_t>(end - text.begin());
}
