#pragma once

#include "text/TextItem.h"
#include "text/TextItemStyle.h"

/// Text that is shown as one Greek letter.
class GreekStyle : public TextItemStyle {
public:
    /// Not yet on a slice.
    explicit GreekStyle(TextItem::GreekSymbol symbol) : symbol_(symbol) {}
    ~GreekStyle() override;

    /// The letter; what no_symbol shows is each generator's affair.
    TextItem::GreekSymbol symbol() const { return symbol_; }

    Kind kind() const override { return Kind::greek; }
    std::string start_tag(const RichTextTagFactory& factory) const override;
    std::string end_tag(const RichTextTagFactory& factory) const override;
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override;
    void text_atom_end(TextAtomPropertyBuilder& builder) const override;
    void print(std::ostream& os) const override;

private:
    TextItem::GreekSymbol symbol_;
};
