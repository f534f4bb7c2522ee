#pragma once

#include "text/TextItemStyle.h"

/// Bold text.
class BoldStyle : public TextItemStyle {
public:
    ~BoldStyle() override;

    Kind kind() const override { return Kind::bold; }
    std::string start_tag(const RichTextTagFactory& factory) const override;
    std::string end_tag(const RichTextTagFactory& factory) const override;
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override;
    void text_atom_end(TextAtomPropertyBuilder& builder) const override;
    void print(std::ostream& os) const override;
};
