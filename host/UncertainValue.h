#pragma once

#include <iosfwd>

/// A measured value and its standard uncertainty, in the unit of the field that holds it.
struct UncertainValue {
    double value = 0;        ///< In the field's unit, as the uncertainty is.
    double uncertainty = 0;  ///< One standard uncertainty; 0: not known.
    int decimals = -1;       ///< With which both are written; -1: as many as they need.

    /// Writes, as in the "C" locale, "10.234(5)", or "10.234" where the uncertainty is not known or
    /// rounds to 0. Decimals that are not given are those that leave an uncertainty of 2 to 19 in
    /// the last place, none for a larger one, or without an uncertainty make six significant
    /// digits.
    void print(std::ostream& os) const;
};

/// Calls print().
std::ostream& operator<<(std::ostream& os, const UncertainValue& value);
