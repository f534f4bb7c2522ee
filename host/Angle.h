#pragma once

#include "host/UncertainValue.h"

/// An angle of a cell.
struct Angle {
    UncertainValue degrees;  ///< Above 0 and below 180 in a cell that exists.
};
