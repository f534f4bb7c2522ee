#include "text/ItalicStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

ItalicStyle::~ItalicStyle() = default;

std::string ItalicStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_italic();
}

std::string ItalicStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_italic();
}

void ItalicStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_italic();
}

void ItalicStyle::text_atom_end(TextAtomPropertyBuilder& builder) const { builder.end_italic(); }

void ItalicStyle::print(std::ostream& os) const {
    os << "ItalicStyle: ";
    TextItemStyle::print(os);
}
