#include "text/VerticalAlignStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

VerticalAlignStyle::~VerticalAlignStyle() = default;

std::string VerticalAlignStyle::start_tag(const RichTextTagFactory& factory) const {
    return alignment_ < 0 ? factory.start_subscript() : factory.start_superscript();
}

std::string VerticalAlignStyle::end_tag(const RichTextTagFactory& factory) const {
    return alignment_ < 0 ? factory.end_subscript() : factory.end_superscript();
}

void VerticalAlignStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_valign(alignment_);
}

void VerticalAlignStyle::text_atom_end(TextAtomPropertyBuilder& builder) const {
    builder.end_valign();
}

void VerticalAlignStyle::print(std::ostream& os) const {
    os << "VerticalAlignStyle: ";
    TextItemStyle::print(os);
}
