#include "MeltingPoint.h"

#include <charconv>

#include "text/Position.h"

namespace {

constexpr std::string_view digits = "0123456789";

/// The number that begins with a digit at `position`, which goes on behind it.
std::optional<double> read_number(std::string_view text, std::size_t& position) {
    if (text.find_first_of(digits, position) != position) return std::nullopt;
    double number = 0;
    const auto read = std::from_chars(text.data() + position, text.data() + text.size(), number);
    if (read.ec != std::errc()) return std::nullopt;
    position = static_cast<std::size_t>(read.ptr - text.data());
    return number;
}

}  // namespace

std::optional<MeltingPoint> find_melting_point(std::string_view text) {
    const std::size_t begin = text.find_first_of(digits);
    if (begin == std::string_view::npos) return std::nullopt;
    std::size_t end = begin;
    const auto from = read_number(text, end);
    if (!from) return std::nullopt;
    auto to = from;
    std::optional<unsigned int> hyphen;
    if (text.substr(end).starts_with('-')) {
        std::size_t end_of_range = end + 1;
        if (const auto last = read_number(text, end_of_range)) {
            to = last;
            hyphen = to_position(end);
            end = end_of_range;
        }
    }
    return MeltingPoint{StringSlice(to_position(begin), to_position(end)), *from, *to, hyphen};
}
