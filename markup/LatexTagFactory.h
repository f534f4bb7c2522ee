#pragma once

#include "markup/ScriptTagFactory.h"

/// The commands of LaTeX. Colours need the package color or xcolor; all else is LaTeX's own. A bar
/// is drawn by mathematics around a box of text, so that text may hold it anywhere.
class LatexTagFactory : public ScriptTagFactory {
public:
    ~LatexTagFactory() override;

    std::string start_bold() const override { return "\\textbf{"; }
    std::string end_bold() const override { return "}"; }
    std::string start_italic() const override { return "\\textit{"; }
    std::string end_italic() const override { return "}"; }
    std::string start_color(TextItem::ColorName color) const override;
    std::string end_color() const override { return "}"; }
    std::string start_superscript() const override { return "\\textsuperscript{"; }
    std::string end_superscript() const override { return "}"; }
    std::string start_subscript() const override { return "\\textsubscript{"; }
    std::string end_subscript() const override { return "}"; }
    std::string start_overstrike() const override { return "$\\overline{\\mbox{"; }
    std::string end_overstrike() const override { return "}}$"; }
    std::string line_break() const override { return "\\newline{}"; }
};
