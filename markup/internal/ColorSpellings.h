#pragma once

#include <string>

#include "text/TextItem.h"

/// How the targets spell one colour.
struct ColorSpellings {
    const char* word;   ///< Of the HTML and Qt font tags.
    const char* css;    ///< CSS knows all words but the numbered ones.
    const char* latex;  ///< The argument of \textcolor, with its model of colours.
    const char* ansi;   ///< The number that selects it: the bright colours are the light ones.
};

/// The colour in one of the spellings; throws what EnumTextMapping::text() throws for a value that
/// is not a colour.
std::string color_text(TextItem::ColorName color, const char* ColorSpellings::*spelling);
