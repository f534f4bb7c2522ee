#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the Latin letters that the Symbol font shows as Greek; refuses no_symbol.
class TextItemToHtmlGreek : public TextItemToOtherGreek {
public:
    ~TextItemToHtmlGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;
};
