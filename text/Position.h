#pragma once

#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string_view>

/// No character position: the largest unsigned 32-bit value, whatever std::string::npos is.
inline constexpr unsigned int no_position = std::numeric_limits<unsigned int>::max();

/// A position of a string as the kernel holds it; std::string::npos becomes no_position.
[[nodiscard]] constexpr unsigned int to_position(std::size_t position) {
    return position == std::string_view::npos ? no_position : static_cast<unsigned int>(position);
}

/// Throws std::length_error for a text whose positions do not all fit: more than 4294967294
/// characters.
constexpr void check_length(std::string_view text) {
    if (text.size() >= no_position) {
        throw std::length_error("text of more than 4294967294 characters");
    }
}

/// The length of `text` in characters; throws what check_length() throws.
[[nodiscard]] constexpr unsigned int length_of(std::string_view text) {
    check_length(text);
    return static_cast<unsigned int>(text.size());
}
