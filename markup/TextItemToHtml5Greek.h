#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the letters themselves, in UTF-8; nothing for no_symbol.
class TextItemToHtml5Greek : public TextItemToOtherGreek {
public:
    ~TextItemToHtml5Greek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
