#pragma once

#include <string>

#include "text/TextItem.h"

/// The spellings of one Greek letter; nullptr where a spelling has none.
struct GreekLetter {
    const char* tevo;         ///< The letter's name.
    const char* cif;          ///< Backslash and a letter; delta and phi share theirs.
    const char* symbol_font;  ///< The Latin letter that the Symbol font shows as the Greek one.
    const char* unicode;      ///< UTF-8.
    const char* latex;        ///< In mathematics of its own; omicron is the Latin letter.
};

/// The text of `symbol` in one of the spellings; throws std::range_error "Unknown sym. " and the
/// converter's name where there is none, as for a value outside the enumeration.
std::string greek_text(TextItem::GreekSymbol symbol, const char* GreekLetter::*spelling,
                       const char* converter);
