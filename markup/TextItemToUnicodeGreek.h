#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the letters themselves, in UTF-8; nothing for no_symbol.
class TextItemToUnicodeGreek : public TextItemToOtherGreek {
public:
    ~TextItemToUnicodeGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
