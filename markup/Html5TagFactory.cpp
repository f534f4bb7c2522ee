#include "markup/Html5TagFactory.h"

namespace {

constexpr char end_span[] = "</span>";

/// CSS knows all colour words but the numbered ones, which are those of the X Window System.
std::string css_color(TextItem::ColorName color) {
    switch (color) {
        case TextItem::green4:
            return "#008b00";
        case TextItem::yellow4:
            return "#8b8b00";
        default:
            return TextItemToStringColor().convert(color);
    }
}

}  // namespace

Html5TagFactory::~Html5TagFactory() = default;

std::string Html5TagFactory::start_color(TextItem::ColorName color) const {
    return "<span style=\"color:" + css_color(color) + "\">";
}

std::string Html5TagFactory::end_color() const { return end_span; }

std::string Html5TagFactory::start_overstrike() const {
    return "<span style=\"text-decoration:overline\">";
}

std::string Html5TagFactory::end_overstrike() const { return end_span; }
