#include "markup/TextItemToHtml5Greek.h"

#include "markup/GreekLetter.h"

TextItemToHtml5Greek::~TextItemToHtml5Greek() = default;

std::string TextItemToHtml5Greek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::unicode, "TextItemToHtml5Greek");
}
