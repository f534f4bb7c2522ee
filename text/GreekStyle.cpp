#include "text/GreekStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

GreekStyle::~GreekStyle() = default;

std::string GreekStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_greek();
}

std::string GreekStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_greek();
}

void GreekStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_greek(symbol_);
}

void GreekStyle::text_atom_end(TextAtomPropertyBuilder& builder) const { builder.end_greek(); }

void GreekStyle::print(std::ostream& os) const {
    os << "GreekStyle: sym " << static_cast<int>(symbol_) << ' ';
    TextItemStyle::print(os);
}
