#include "text/TextAtom.h"

#include <ostream>

void TextAtom::print(std::ostream& os) const {
    os << "TextAtom Text: \"" << text_ << "\"\nTextAtom Properties: " << property_;
}

std::ostream& operator<<(std::ostream& os, const TextAtom& atom) {
    atom.print(os);
    return os;
}
