#pragma once

#include "text/TextItemStyle.h"

/// Text below or above the line.
class VerticalAlignStyle : public TextItemStyle {
public:
    /// Below 0 a subscript, from 0 on a superscript; property builders get the value itself.
    explicit VerticalAlignStyle(int alignment) : alignment_(alignment) {}
    ~VerticalAlignStyle() override;

    Kind kind() const override { return alignment_ < 0 ? Kind::subscript : Kind::superscript; }
    std::string start_tag(const RichTextTagFactory& factory) const override;
    std::string end_tag(const RichTextTagFactory& factory) const override;
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override;
    void text_atom_end(TextAtomPropertyBuilder& builder) const override;
    void print(std::ostream& os) const override;

private:
    int alignment_;
};
