#pragma once

#include <string>
#include <string_view>

/// What is taken for the same in a text.
struct Folding {
    bool letter_case = true;
    bool accents = true;      ///< And letters that have a mark in them, and ligatures: ø, ł, æ.
    bool dashes = true;       ///< All become "-".
    bool apostrophes = true;  ///< Primes, apostrophes and quotation marks become "'".
    bool blanks = true;       ///< Any number of them, line ends too, becomes " ".
    bool greek = true;        ///< Letters become their names: "alpha".
    bool forms = true;        ///< Raised, lowered, wide and other forms become the usual ones.
    bool umlauts = false;     ///< ä, ö and ü become ae, oe and ue, not a, o and u.
};

/// The text folded. Canonically equivalent texts have the same folding, whatever it is. Bytes that
/// are not UTF-8 stay as they are. Linear in the length.
std::string folded(std::string_view text, const Folding& folding);
