#include "markup/TextItemToStringColor.h"

#include "markup/internal/ColorSpellings.h"

std::string TextItemToStringColor::convert(TextItem::ColorName color) const {
    return color_text(color, &ColorSpellings::word);
}
