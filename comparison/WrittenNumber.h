#pragma once

#include <string_view>
#include <vector>

#include "text/StringSlice.h"

/// A number in a text, such as "-12.345(6)", "1e-5" or ".332".
struct WrittenNumber {
    StringSlice place;       ///< Of the number with its uncertainty.
    StringSlice label;       ///< Of the word before it, "a" or "Z'", with what stands between.
    double value;            ///< Infinite where it is too large.
    double uncertainty = 0;  ///< One standard uncertainty; 0: not given.
    double last_place;       ///< The worth of a unit in its last digit.
};

/// All numbers of a text, ascending. Digits behind a letter, as in "C22", are a number too, of
/// which the letters are the label. Linear.
std::vector<WrittenNumber> numbers_of(std::string_view text);
