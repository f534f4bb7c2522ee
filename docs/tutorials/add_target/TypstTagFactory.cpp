#include "TypstTagFactory.h"

#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

constexpr EnumTextMapping<TextItem::ColorName>::Initialiser color_rows[] = {
    {TextItem::black, "#000000"},    {TextItem::red, "#ff0000"},
    {TextItem::blue, "#0000ff"},     {TextItem::green, "#008000"},
    {TextItem::yellow, "#ffff00"},   {TextItem::magenta, "#ff00ff"},
    {TextItem::cyan, "#00ffff"},     {TextItem::darkred, "#8b0000"},
    {TextItem::darkblue, "#00008b"}, {TextItem::green4, "#008b00"},
    {TextItem::yellow4, "#8b8b00"},  {TextItem::darkmagenta, "#8b008b"},
    {TextItem::darkcyan, "#008b8b"},
};
static_assert(std::size(color_rows) == TextItem::darkcyan + 1, "every colour has one row");

const EnumTextMapping<TextItem::ColorName> colors(color_rows, std::size(color_rows));

}  // namespace

TypstTagFactory::~TypstTagFactory() = default;

std::string TypstTagFactory::start_color(TextItem::ColorName color) const {
    return "#text(fill: rgb(\"" + colors.text(color) + "\"))[";
}
