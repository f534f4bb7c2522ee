#pragma once

#include "markup/ScriptTagFactory.h"

/// The functions of Typst. Each takes what it styles as content between square brackets.
class TypstTagFactory : public ScriptTagFactory {
public:
    ~TypstTagFactory() override;

    std::string start_bold() const override { return "#strong["; }
    std::string end_bold() const override { return "]"; }
    std::string start_italic() const override { return "#emph["; }
    std::string end_italic() const override { return "]"; }
    std::string start_color(TextItem::ColorName color) const override;
    std::string end_color() const override { return "]"; }
    std::string start_superscript() const override { return "#super["; }
    std::string end_superscript() const override { return "]"; }
    std::string start_subscript() const override { return "#sub["; }
    std::string end_subscript() const override { return "]"; }
    std::string start_overstrike() const override { return "#overline["; }
    std::string end_overstrike() const override { return "]"; }
    std::string line_break() const override { return "#linebreak()"; }
};
