#include "text/ReplacementTextStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

ReplacementTextStyle::~ReplacementTextStyle() = default;

std::string ReplacementTextStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_replacement_text();
}

std::string ReplacementTextStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_replacement_text();
}

void ReplacementTextStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_replacement_text(replacement_text_);
}

void ReplacementTextStyle::text_atom_end(TextAtomPropertyBuilder& builder) const {
    builder.end_replacement_text();
}

void ReplacementTextStyle::print(std::ostream& os) const {
    os << "ReplacementTextStyle: ";
    TextItemStyle::print(os);
}
