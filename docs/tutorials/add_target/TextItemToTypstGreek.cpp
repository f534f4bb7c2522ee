#include "TextItemToTypstGreek.h"

#include "markup/GreekLetter.h"

TextItemToTypstGreek::~TextItemToTypstGreek() = default;

std::string TextItemToTypstGreek::convert(TextItem::GreekSymbol symbol) const {
    switch (symbol) {
        case TextItem::no_symbol:
            return {};
        case TextItem::cdelta:
            return "#sym.Delta;";
        case TextItem::clambda:
            return "#sym.Lambda;";
        default:  // the small letters have the same names there
            return "#sym." + greek_text(symbol, &GreekLetter::tevo, "TextItemToTypstGreek") + ';';
    }
}
