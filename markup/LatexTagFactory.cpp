#include "markup/LatexTagFactory.h"

#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

// LaTeX has names for the primary colours; the others are those of the X Window System.
constexpr EnumTextMapping<TextItem::ColorName>::Initialiser color_rows[] = {
    {TextItem::black, "{black}"},
    {TextItem::red, "{red}"},
    {TextItem::blue, "{blue}"},
    {TextItem::green, "{green}"},
    {TextItem::yellow, "{yellow}"},
    {TextItem::magenta, "{magenta}"},
    {TextItem::cyan, "{cyan}"},
    {TextItem::darkred, "[rgb]{0.545,0,0}"},
    {TextItem::darkblue, "[rgb]{0,0,0.545}"},
    {TextItem::green4, "[rgb]{0,0.545,0}"},
    {TextItem::yellow4, "[rgb]{0.545,0.545,0}"},
    {TextItem::darkmagenta, "[rgb]{0.545,0,0.545}"},
    {TextItem::darkcyan, "[rgb]{0,0.545,0.545}"},
};
static_assert(std::size(color_rows) == TextItem::darkcyan + 1, "every colour has one row");

const EnumTextMapping<TextItem::ColorName> colors(color_rows, std::size(color_rows));

}  // namespace

LatexTagFactory::~LatexTagFactory() = default;

std::string LatexTagFactory::start_color(TextItem::ColorName color) const {
    return "\\textcolor" + colors.text(color) + "{";
}
