#include "markup/Html5TagFactory.h"

#include "markup/internal/ColorSpellings.h"

namespace {

constexpr char end_span[] = "</span>";

}  // namespace

Html5TagFactory::~Html5TagFactory() = default;

std::string Html5TagFactory::start_color(TextItem::ColorName color) const {
    return "<span style=\"color:" + color_text(color, &ColorSpellings::css) + "\">";
}

std::string Html5TagFactory::end_color() const { return end_span; }

std::string Html5TagFactory::start_overstrike() const {
    return "<span style=\"text-decoration:overline\">";
}

std::string Html5TagFactory::end_overstrike() const { return end_span; }
