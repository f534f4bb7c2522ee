#pragma once

#include "markup/ScriptTagFactory.h"

/// What plain text has for styles: braces behind "_" and "^" for the scripts that have no
/// characters of their own, and the combining overline, which stands behind each character under a
/// bar.
class UnicodeTagFactory : public ScriptTagFactory {
public:
    ~UnicodeTagFactory() override;

    std::string start_superscript() const override { return "^{"; }
    std::string end_superscript() const override { return "}"; }
    std::string start_subscript() const override { return "_{"; }
    std::string end_subscript() const override { return "}"; }
    std::string start_overstrike() const override { return "\u0305"; }
    std::string line_break() const override { return "\n"; }
};
