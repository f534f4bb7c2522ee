#include "markup/LatexTagFactory.h"

#include "markup/internal/ColorSpellings.h"

LatexTagFactory::~LatexTagFactory() = default;

std::string LatexTagFactory::start_color(TextItem::ColorName color) const {
    return "\\textcolor" + color_text(color, &ColorSpellings::latex) + "{";
}
