#include "output/PageTagFactory.h"

PageTagFactory::~PageTagFactory() = default;

std::string PageTagFactory::start_color(TextItem::ColorName color) const {
    return "<span class=\"" + color_words_.convert(color) + "\">";
}

std::string PageTagFactory::start_overstrike() const { return "<span class=\"bar\">"; }
