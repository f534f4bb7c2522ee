#include "markup/TextItemToQtGreek.h"

#include "markup/GreekLetter.h"

TextItemToQtGreek::~TextItemToQtGreek() = default;

std::string TextItemToQtGreek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::symbol_font, "TextItemToQtGreek");
}
