#pragma once

#include <iosfwd>

/// A measured value and its standard uncertainty, in the unit of the field that holds it.
struct UncertainValue {
    double value = 0;
    double uncertainty = 0;  // 0: not known
    int decimals = -1;       // with which both are written; -1: as many as they need

    /// Writes "10.234(5)", or "10.234" without an uncertainty. Decimals that are not given are
    /// those that leave an uncertainty of 2 to 19 in the last place, or make six significant
    /// digits.
    void print(std::ostream& os) const;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const UncertainValue& value);
