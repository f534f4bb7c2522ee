#pragma once

#include "text/TextItem.h"
#include "text/TextItemStyle.h"

/// Text in a colour.
class ColorStyle : public TextItemStyle {
public:
    /// Not yet on a slice. A value that is not a colour makes start_tag() throw what the factory
    /// throws.
    explicit ColorStyle(TextItem::ColorName color) : color_(color) {}
    ~ColorStyle() override;

    /// As it was given.
    TextItem::ColorName color() const { return color_; }

    Kind kind() const override { return Kind::color; }
    std::string start_tag(const RichTextTagFactory& factory) const override;
    std::string end_tag(const RichTextTagFactory& factory) const override;
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override;
    void text_atom_end(TextAtomPropertyBuilder& builder) const override;
    void print(std::ostream& os) const override;

private:
    TextItem::ColorName color_;
};
