#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the letters as symbols, `#sym.alpha;`; nothing for no_symbol.
class TextItemToTypstGreek : public TextItemToOtherGreek {
public:
    ~TextItemToTypstGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
