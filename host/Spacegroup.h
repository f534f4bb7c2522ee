#pragma once

#include <string>

/// A space group in one of its settings.
struct Spacegroup {
    /// Of Hermann and Mauguin, with blanks: "P 1 21/c 1"; empty: not known.
    std::string symbol;
    int number = 0;       ///< 1 to 230 of International Tables A; 0: not known.
    char centring = 'P';  ///< Of the setting's cell, as ReducedCell::of() takes it.

    /// Whether it holds rotations, screws and translations only, as crystals of one hand have.
    /// False without a number.
    bool sohncke() const;
};
