#pragma once

#include "markup/RichTextTagFactory.h"
#include "markup/TextItemToStringColor.h"

/// What HTML and Qt rich text have in common, which today is everything. Greek letters are Latin
/// ones in the Symbol font; a bar over the text becomes a line under it.
class HTMLQtCommonTagFactory : public RichTextTagFactory {
public:
    ~HTMLQtCommonTagFactory() override;

    std::string start_bold() const override { return "<b>"; }
    std::string end_bold() const override { return "</b>"; }
    std::string start_italic() const override { return "<i>"; }
    std::string end_italic() const override { return "</i>"; }
    std::string start_color(TextItem::ColorName color) const override;
    std::string end_color() const override { return end_font(); }
    std::string start_superscript() const override { return "<sup>"; }
    std::string end_superscript() const override { return "</sup>"; }
    std::string start_subscript() const override { return "<sub>"; }
    std::string end_subscript() const override { return "</sub>"; }
    std::string start_greek() const override;
    std::string end_greek() const override { return end_font(); }
    std::string start_overstrike() const override { return "<u>"; }
    std::string end_overstrike() const override { return "</u>"; }
    std::string start_invisible() const override { return {}; }
    std::string end_invisible() const override { return {}; }
    std::string start_replacement_text() const override { return {}; }
    std::string end_replacement_text() const override { return {}; }
    std::string line_break() const override { return "<br>"; }

    /// What ends colours and Greek letters alike.
    std::string end_font() const { return "</font>"; }

private:
    TextItemToStringColor color_texts_;
};
