#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

/// The number that the whole text is, as in the "C" locale, if it is one.
template <class Number>
std::optional<Number> read_whole(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end) return std::nullopt;
    return number;
}
