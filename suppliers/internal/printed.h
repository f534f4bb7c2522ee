#pragma once

#include <charconv>
#include <ios>
#include <iterator>
#include <locale>
#include <sstream>
#include <string>

/// What a stream writes for values by default, one behind the other: six significant digits of a
/// number. The same in every locale.
template <class... Values>
std::string printed(const Values&... values) {
    std::ostringstream os;
    os.exceptions(std::ios::badbit);  // lack of memory would cut the text short
    os.imbue(std::locale::classic());
    (os << ... << values);
    return os.str();
}

/// The same without a stream, which costs more than the number.
inline std::string printed(double value) {
    char buffer[32];
    const auto end =
        std::to_chars(buffer, std::end(buffer), value, std::chars_format::general, 6).ptr;
    return {buffer, end};
}
