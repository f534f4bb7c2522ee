#include "text/InvisibleStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

InvisibleStyle::~InvisibleStyle() = default;

std::string InvisibleStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_invisible();
}

std::string InvisibleStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_invisible();
}

void InvisibleStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_invisible();
}

void InvisibleStyle::text_atom_end(TextAtomPropertyBuilder& builder) const {
    builder.end_invisible();
}

void InvisibleStyle::print(std::ostream& os) const {
    os << "InvisibleStyle: ";
    TextItemStyle::print(os);
}
