#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes a backslash and a letter; nothing for no_symbol.
class TextItemToCifGreek : public TextItemToOtherGreek {
public:
    ~TextItemToCifGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
