#pragma once

#include "markup/TextItemToOtherGreek.h"

/// Writes the letters themselves, in UTF-8; nothing for no_symbol.
class TextItemToUnicodeGreek : public TextItemToOtherGreek {
public:
    TextItemToUnicodeGreek() : TextItemToUnicodeGreek("TextItemToUnicodeGreek") {}
    ~TextItemToUnicodeGreek() override;

    std::string convert(TextItem::GreekSymbol symbol) const override;

protected:
    /// For a subclass: the name by which its errors call it, which must live as long as this.
    explicit TextItemToUnicodeGreek(const char* name) : name_(name) {}

private:
    const char* name_;
};
