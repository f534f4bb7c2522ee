#pragma once

#include <string>

#include "text/TextItem.h"

/// The words that HTML and Qt font tags use for the colours.
class TextItemToStringColor {
public:
    /// Throws std::invalid_argument "Internal Error: member N not in EnumTextMapping" for a value
    /// that is not a colour.
    std::string convert(TextItem::ColorName color) const;
};
