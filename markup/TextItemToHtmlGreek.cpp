#include "markup/TextItemToHtmlGreek.h"

#include "markup/GreekLetter.h"

TextItemToHtmlGreek::~TextItemToHtmlGreek() = default;

std::string TextItemToHtmlGreek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::symbol_font, "TextItemToHtmlGreek");
}
