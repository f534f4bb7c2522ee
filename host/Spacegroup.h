#pragma once

#include <string>

/// A space group in one of its settings.
struct Spacegroup {
    std::string symbol;   // of Hermann and Mauguin, with blanks: "P 1 21/c 1"; empty: not known
    int number = 0;       // 1 to 230 of International Tables A; 0: not known
    char centring = 'P';  // of the setting's cell

    /// Whether it holds rotations, screws and translations only, as crystals of one hand have.
    /// False without a number.
    bool sohncke() const;
};
