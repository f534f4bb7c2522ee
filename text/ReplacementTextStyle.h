#pragma once

#include "text/TextItemStyle.h"

/// Text that is shown as another text.
class ReplacementTextStyle : public TextItemStyle {
public:
    /// Not yet on a slice. An empty text shows nothing in the slice's place.
    explicit ReplacementTextStyle(const std::string& text) : replacement_text_(text) {}
    ~ReplacementTextStyle() override;

    /// A copy of the text.
    std::string replacement_text() const { return replacement_text_; }

    Kind kind() const override { return Kind::replacement_text; }
    std::string start_tag(const RichTextTagFactory& factory) const override;
    std::string end_tag(const RichTextTagFactory& factory) const override;
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override;
    void text_atom_end(TextAtomPropertyBuilder& builder) const override;
    void print(std::ostream& os) const override;

private:
    std::string replacement_text_;
};
