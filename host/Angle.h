#pragma once

#include "host/UncertainValue.h"

/// An angle of a cell.
struct Angle {
    UncertainValue degrees;
};
