#pragma once

#include "markup/RichTextTagFactory.h"

/// The database's own mark-up. "!" shifts the writing level down and "$" shifts it up, so that each
/// opens the one script and closes the other. Only the scripts have tags.
class TevoTagFactory : public RichTextTagFactory {
public:
    ~TevoTagFactory() override;

    std::string start_bold() const override { return {}; }
    std::string end_bold() const override { return {}; }
    std::string start_italic() const override { return {}; }
    std::string end_italic() const override { return {}; }
    std::string start_color(TextItem::ColorName /*color*/) const override { return {}; }
    std::string end_color() const override { return {}; }
    std::string start_superscript() const override { return "$"; }
    std::string end_superscript() const override { return "!"; }
    std::string start_subscript() const override { return "!"; }
    std::string end_subscript() const override { return "$"; }
    std::string start_greek() const override { return {}; }
    std::string end_greek() const override { return {}; }
    std::string start_overstrike() const override { return {}; }
    std::string end_overstrike() const override { return {}; }
    std::string start_invisible() const override { return {}; }
    std::string end_invisible() const override { return {}; }
    std::string start_replacement_text() const override { return {}; }
    std::string end_replacement_text() const override { return {}; }
    std::string line_break() const override { return {}; }
};
