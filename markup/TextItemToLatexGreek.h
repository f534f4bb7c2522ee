#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the letters in mathematics, `$\alpha$`; nothing for no_symbol.
class TextItemToLatexGreek : public TextItemToOtherGreek {
public:
    ~TextItemToLatexGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
