#include "markup/AnsiTagFactory.h"

#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

constexpr EnumTextMapping<TextItem::ColorName>::Initialiser color_rows[] = {
    {TextItem::black, "30"},    {TextItem::red, "91"},     {TextItem::blue, "94"},
    {TextItem::green, "92"},    {TextItem::yellow, "93"},  {TextItem::magenta, "95"},
    {TextItem::cyan, "96"},     {TextItem::darkred, "31"}, {TextItem::darkblue, "34"},
    {TextItem::green4, "32"},   {TextItem::yellow4, "33"}, {TextItem::darkmagenta, "35"},
    {TextItem::darkcyan, "36"},
};
static_assert(std::size(color_rows) == TextItem::darkcyan + 1, "every colour has one row");

const EnumTextMapping<TextItem::ColorName> colors(color_rows, std::size(color_rows));

}  // namespace

AnsiTagFactory::~AnsiTagFactory() = default;

std::string AnsiTagFactory::start_color(TextItem::ColorName color) const {
    return "\x1b[" + colors.text(color) + 'm';
}
