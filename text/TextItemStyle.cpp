#include "text/TextItemStyle.h"

#include <ostream>

TextItemStyle::~TextItemStyle() = default;

void TextItemStyle::print(std::ostream& os) const {
    os << "From " << from() << " To " << to() << std::endl;
}

std::ostream& operator<<(std::ostream& os, const TextItemStyle& style) {
    style.print(os);
    return os;
}
