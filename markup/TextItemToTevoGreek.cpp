#include "markup/TextItemToTevoGreek.h"

#include "markup/GreekLetter.h"

TextItemToTevoGreek::~TextItemToTevoGreek() = default;

std::string TextItemToTevoGreek::convert(TextItem::GreekSymbol symbol) const {
    return greek_text(symbol, &GreekLetter::tevo, "TextItemToTevoGreek");
}
