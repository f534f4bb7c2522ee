#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

/// For each byte whether it is one of ASCII, but none of `signs`.
constexpr std::array<bool, 256> all_ascii_but(std::string_view signs) {
    std::array<bool, 256> result{};
    for (std::size_t byte = 0; byte < 0x80; ++byte) result[byte] = true;
    for (const char sign : signs) result[static_cast<unsigned char>(sign)] = false;
    return result;
}

/// How many bytes at the front of a text are such as the table has.
inline std::size_t size_of_run(std::string_view text, const std::array<bool, 256>& in_run) {
    const auto end = std::find_if_not(text.begin(), text.end(), [&in_run](char c) {
        return in_run[static_cast<unsigned char>(c)];
    });
    return static_cast<std::size_t>(end - text.begin());
}
