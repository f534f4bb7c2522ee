#pragma once

#include <ostream>
#include <vector>

/// Prints a vector for the debug log: "[" and the elements, separated by ", ", and "]".
template <class T>
requires requires(std::ostream& os, const T& element) { os << element; }
std::ostream& operator<<(std::ostream& os, const std::vector<T>& elements) {
    os << '[';
    const char* separator = "";
    for (const T& element : elements) {
        os << separator << element;
        separator = ", ";
    }
    return os << ']';
}
