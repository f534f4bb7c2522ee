#include "markup/TextItemToUnicodeGreek.h"

#include "markup/GreekLetter.h"

TextItemToUnicodeGreek::~TextItemToUnicodeGreek() = default;

std::string TextItemToUnicodeGreek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::unicode, name_);
}
