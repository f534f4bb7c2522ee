#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the letters' names; nothing for no_symbol.
class TextItemToTevoGreek : public TextItemToOtherGreek {
public:
    ~TextItemToTevoGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
