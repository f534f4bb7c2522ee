#pragma once

#include <stdexcept>

/// A label is that of no field; what() is the label.
class UnknownField : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};
