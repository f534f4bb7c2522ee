#pragma once

#include <locale>
#include <sstream>
#include <string>

/// What a stream writes for a value by default: six significant digits of a number. The same in
/// every locale.
template <class Value>
std::string printed(const Value& value) {
    std::ostringstream os;
    os.imbue(std::locale::classic());
    os << value;
    return os.str();
}
