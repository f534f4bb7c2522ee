#pragma once

#include "markup/RichTextTagFactory.h"

/// The text conventions of CIF files: one character both opens and closes a script. Only the
/// scripts have tags.
class CifTagFactory : public RichTextTagFactory {
public:
    ~CifTagFactory() override;

    std::string start_bold() const override { return {}; }
    std::string end_bold() const override { return {}; }
    std::string start_italic() const override { return {}; }
    std::string end_italic() const override { return {}; }
    std::string start_color(TextItem::ColorName /*color*/) const override { return {}; }
    std::string end_color() const override { return {}; }
    std::string start_superscript() const override { return "^"; }
    std::string end_superscript() const override { return "^"; }
    std::string start_subscript() const override { return "~"; }
    std::string end_subscript() const override { return "~"; }
    std::string start_greek() const override { return {}; }
    std::string end_greek() const override { return {}; }
    std::string start_overstrike() const override { return {}; }
    std::string end_overstrike() const override { return {}; }
    std::string start_invisible() const override { return {}; }
    std::string end_invisible() const override { return {}; }
    std::string start_replacement_text() const override { return {}; }
    std::string end_replacement_text() const override { return {}; }
    std::string line_break() const override { return "\n"; }
};
