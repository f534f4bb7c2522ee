#include "text/BoldStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

BoldStyle::~BoldStyle() = default;

std::string BoldStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_bold();
}

std::string BoldStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_bold();
}

void BoldStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const { builder.begin_bold(); }

void BoldStyle::text_atom_end(TextAtomPropertyBuilder& builder) const { builder.end_bold(); }

void BoldStyle::print(std::ostream& os) const {
    os << "BoldStyle: ";
    TextItemStyle::print(os);
}
