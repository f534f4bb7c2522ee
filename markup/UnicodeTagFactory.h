#pragma once

#include "markup/RichTextTagFactory.h"

/// What plain text has for styles: braces behind "_" and "^" for the scripts that have no
/// characters of their own, and the combining overline, which stands behind each character under a
/// bar.
class UnicodeTagFactory : public RichTextTagFactory {
public:
    ~UnicodeTagFactory() override;

    std::string start_bold() const override { return {}; }
    std::string end_bold() const override { return {}; }
    std::string start_italic() const override { return {}; }
    std::string end_italic() const override { return {}; }
    std::string start_color(TextItem::ColorName /*color*/) const override { return {}; }
    std::string end_color() const override { return {}; }
    std::string start_superscript() const override { return "^{"; }
    std::string end_superscript() const override { return "}"; }
    std::string start_subscript() const override { return "_{"; }
    std::string end_subscript() const override { return "}"; }
    std::string start_greek() const override { return {}; }
    std::string end_greek() const override { return {}; }
    std::string start_overstrike() const override { return "\u0305"; }
    std::string end_overstrike() const override { return {}; }
    std::string start_invisible() const override { return {}; }
    std::string end_invisible() const override { return {}; }
    std::string start_replacement_text() const override { return {}; }
    std::string end_replacement_text() const override { return {}; }
    std::string line_break() const override { return "\n"; }
};
