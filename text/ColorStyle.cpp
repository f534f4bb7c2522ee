#include "text/ColorStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

ColorStyle::~ColorStyle() = default;

std::string ColorStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_color(color_);
}

std::string ColorStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_color();
}

void ColorStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_color(color_);
}

void ColorStyle::text_atom_end(TextAtomPropertyBuilder& builder) const { builder.end_color(); }

void ColorStyle::print(std::ostream& os) const {
    os << "ColorStyle: color " << static_cast<int>(color_) << ' ';
    TextItemStyle::print(os);
}
