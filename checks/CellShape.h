#pragma once

#include <string_view>

#include "host/Spacegroup.h"

/// What a crystal system makes of a cell in one of its settings.
struct CellShape {
    const char* name;       ///< "monoclinic with unique axis b".
    double angles[3];       ///< In degrees: alpha, beta, gamma; 0: any.
    bool angles_are_equal;  ///< And any.
    int equal_edges;        ///< How many of them, from a on, are equal: 1, 2 or 3.
};

/// The crystal system of a group, by its number from 1 to 230, in lower case.
std::string_view crystal_system_of(int number);

/// What a group in that setting asks of its cell; a triclinic one asks nothing.
const CellShape& shape_of(const Spacegroup& group);

/// Likewise what a monoclinic group with another unique axis would: 'a', 'b' or 'c'.
const CellShape& monoclinic_shape(char unique_axis);
