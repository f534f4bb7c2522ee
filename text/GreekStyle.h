#pragma once

#include "text/TextItem.h"
#include "text/TextItemStyle.h"

/// Text that is shown as one Greek letter.
class GreekStyle : public TextItemStyle {
public:
    explicit GreekStyle(TextItem::GreekSymbol symbol) : symbol_(symbol) {}
    ~GreekStyle() override;

    TextItem::GreekSymbol symbol() const { return symbol_; }

    std::string start_tag(const RichTextTagFactory& factory) const override;
    std::string end_tag(const RichTextTagFactory& factory) const override;
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override;
    void text_atom_end(TextAtomPropertyBuilder& builder) const override;
    void print(std::ostream& os) const override;

private:
    TextItem::GreekSymbol symbol_;
};
