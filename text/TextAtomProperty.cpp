#include "text/TextAtomProperty.h"

#include <ostream>

void TextAtomProperty::print(std::ostream& os) const {
    os << "\tVertical alignment: " << valign_ << '\n'
       << "\tBold: " << int{bold_} << '\n'
       << "\tItalic: " << int{italic_} << '\n'
       << "\tOverstrike: " << int{overstrike_} << '\n'
       << "\tInvisible: " << int{invisible_} << '\n'
       << "\tColor: " << static_cast<int>(color_) << '\n'
       << "\tReplacement text: " << replacement_txt_ << '\n'
       << "\tGreek: " << static_cast<int>(greek_) << '\n';
}

std::ostream& operator<<(std::ostream& os, const TextAtomProperty& property) {
    property.print(os);
    return os;
}
