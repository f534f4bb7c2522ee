#pragma once

#include <ostream>
#include <vector>

/// Prints a vector for the debug log: "[" and the elements, separated by ", ", and "]". Refers to
/// the vector: write `os << VectorOutput(elements)`.
template <class T>
class VectorOutput {
public:
    /// The vector must outlive this.
    explicit VectorOutput(const std::vector<T>& elements) : elements_(elements) {}

    /// Prints.
    friend std::ostream& operator<<(std::ostream& os, const VectorOutput& output) {
        os << '[';
        const char* separator = "";
        for (const T& element : output.elements_) {
            os << separator << element;
            separator = ", ";
        }
        return os << ']';
    }

private:
    const std::vector<T>& elements_;
};
