#pragma once

#include <string>
#include <string_view>

/// What is taken for the same in a text.
struct Folding {
    bool letter_case = true;
    bool accents = true;  ///< And letters that have a mark in them, and ligatures: ø, ł, æ.
    bool dashes = true;   ///< And minus signs: all become "-"; soft hyphens are dropped.
    /// Primes, apostrophes and quotation marks become "'", or as many as they are written with.
    bool apostrophes = true;
    bool blanks = true;  ///< Any number of them, line ends too, becomes " ".
    bool greek = true;   ///< Letters become their names: "alpha".
    /// Raised, lowered, wide and other forms become the usual ones, and what has no width is
    /// dropped. A bar over a digit becomes "-" before it.
    bool forms = true;
    bool umlauts = false;  ///< ä, ö and ü become ae, oe and ue, not a, o and u.
};

/// The text folded, by Unicode's tables and decomposed. Canonically equivalent texts have the same
/// folding, whatever it is. Bytes that are not UTF-8 stay as they are. Linear in the length.
std::string folded(std::string_view text, const Folding& folding);
