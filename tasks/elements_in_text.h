#pragma once

#include <string_view>
#include <vector>

#include "text/StringSlice.h"

/// An element of a formula: "C22".
struct WrittenElement {
    StringSlice place;        ///< In the text.
    std::string_view symbol;  ///< A capital, and a small letter where there is one.
    std::string_view count;   ///< "1" where none is written.

    /// Of that element as many.
    bool is_same(const WrittenElement& other) const {
        return symbol == other.symbol && count == other.count;
    }
};

/// The elements of a formula in turn: "C60 H60 B6", "2(C22H20N), Cl". Multipliers and charges are
/// passed over. Refers to the text.
std::vector<WrittenElement> elements_in(std::string_view formula);
/// Whether a text is nothing but elements, one of them with its number, and blanks.
bool is_plain_formula(std::string_view text);
/// The places of all elements wanted, each as often as it stands there; none where one is missing.
std::vector<StringSlice> places_of(const std::vector<WrittenElement>& wanted,
                                   std::string_view formula);
