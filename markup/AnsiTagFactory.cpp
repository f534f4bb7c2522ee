#include "markup/AnsiTagFactory.h"

#include "markup/internal/ColorSpellings.h"

AnsiTagFactory::~AnsiTagFactory() = default;

std::string AnsiTagFactory::start_color(TextItem::ColorName color) const {
    return "\x1b[" + color_text(color, &ColorSpellings::ansi) + 'm';
}
