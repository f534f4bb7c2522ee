#include "text/OverStrikeStyle.h"

#include <ostream>

#include "markup/RichTextTagFactory.h"
#include "text/TextAtomPropertyBuilder.h"

OverStrikeStyle::~OverStrikeStyle() = default;

std::string OverStrikeStyle::start_tag(const RichTextTagFactory& factory) const {
    return factory.start_overstrike();
}

std::string OverStrikeStyle::end_tag(const RichTextTagFactory& factory) const {
    return factory.end_overstrike();
}

void OverStrikeStyle::text_atom_begin(TextAtomPropertyBuilder& builder) const {
    builder.begin_overstrike();
}

void OverStrikeStyle::text_atom_end(TextAtomPropertyBuilder& builder) const {
    builder.end_overstrike();
}

// The label's lower-case s is what readers of these lines match.
void OverStrikeStyle::print(std::ostream& os) const {
    os << "OverstrikeStyle: ";
    TextItemStyle::print(os);
}
