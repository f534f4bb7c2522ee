#include "markup/TextItemToLatexGreek.h"

#include "markup/GreekLetter.h"

TextItemToLatexGreek::~TextItemToLatexGreek() = default;

std::string TextItemToLatexGreek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::latex, "TextItemToLatexGreek");
}
