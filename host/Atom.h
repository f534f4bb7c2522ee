#pragma once

#include <string>

/// An atom of the asymmetric unit.
struct Atom {
    std::string label;
    double x, y, z;  // fractions of the cell's edges
};
