#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// A label is that of no field; what() is the label.
class UnknownField : public std::invalid_argument {
public:
    /// `nearest` lives as long as the program.
    UnknownField(const std::string& label, std::string_view nearest)
        : std::invalid_argument(label), nearest_(nearest) {}

    /// The label that is most likely meant; empty where none is near.
    std::string_view nearest() const { return nearest_; }

private:
    std::string_view nearest_;
};
