#include "markup/TextItemToStringColor.h"

#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

// One row per colour, in value order.
constexpr EnumTextMapping<TextItem::ColorName>::Initialiser color_rows[] = {
    {TextItem::black, "black"},       {TextItem::red, "red"},
    {TextItem::blue, "blue"},         {TextItem::green, "green"},
    {TextItem::yellow, "yellow"},     {TextItem::magenta, "magenta"},
    {TextItem::cyan, "cyan"},         {TextItem::darkred, "darkred"},
    {TextItem::darkblue, "darkblue"}, {TextItem::green4, "green4"},
    {TextItem::yellow4, "yellow4"},   {TextItem::darkmagenta, "darkmagenta"},
    {TextItem::darkcyan, "darkcyan"},
};
static_assert(std::size(color_rows) == TextItem::darkcyan + 1, "every colour has one row");

const EnumTextMapping<TextItem::ColorName> color_mapping(color_rows, std::size(color_rows));

}  // namespace

std::string TextItemToStringColor::convert(TextItem::ColorName color) const {
    return color_mapping.text(color);
}
