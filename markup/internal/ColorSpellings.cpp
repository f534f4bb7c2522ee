#include "markup/internal/ColorSpellings.h"

#include <array>
#include <iterator>

#include "markup/EnumTextMapping.h"

namespace {

// One row per colour, in value order. LaTeX has names for the primary colours; those of the others,
// and the numbers of the numbered ones, are the X Window System's.
constexpr ColorSpellings colors[] = {
    {"black", "black", "{black}", "30"},
    {"red", "red", "{red}", "91"},
    {"blue", "blue", "{blue}", "94"},
    {"green", "green", "{green}", "92"},
    {"yellow", "yellow", "{yellow}", "93"},
    {"magenta", "magenta", "{magenta}", "95"},
    {"cyan", "cyan", "{cyan}", "96"},
    {"darkred", "darkred", "[rgb]{0.545,0,0}", "31"},
    {"darkblue", "darkblue", "[rgb]{0,0,0.545}", "34"},
    {"green4", "#008b00", "[rgb]{0,0.545,0}", "32"},
    {"yellow4", "#8b8b00", "[rgb]{0.545,0.545,0}", "33"},
    {"darkmagenta", "darkmagenta", "[rgb]{0.545,0,0.545}", "35"},
    {"darkcyan", "darkcyan", "[rgb]{0,0.545,0.545}", "36"},
};
static_assert(std::size(colors) == TextItem::darkcyan + 1, "every colour has one row");

using Words = EnumTextMapping<TextItem::ColorName>;

Words make_words() {
    std::array<Words::Initialiser, std::size(colors)> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i] = {static_cast<TextItem::ColorName>(i), colors[i].word};
    }
    return {rows.data(), static_cast<unsigned int>(rows.size())};
}

const Words words = make_words();

}  // namespace

std::string color_text(TextItem::ColorName color, const char* ColorSpellings::*spelling) {
    const auto index = static_cast<unsigned int>(color);
    if (index < std::size(colors)) return colors[index].*spelling;
    return words.text(color);  // says that there is no such member
}
