#include "markup/TextItemToCifGreek.h"

#include "markup/GreekLetter.h"

TextItemToCifGreek::~TextItemToCifGreek() = default;

std::string TextItemToCifGreek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::cif, "TextItemToCifGreek");
}
