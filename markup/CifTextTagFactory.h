#pragma once

#include "markup/ScriptTagFactory.h"

/// The marks of styles in the texts of CIF files. A bar has no mark; it stands behind each
/// character.
class CifTextTagFactory : public ScriptTagFactory {
public:
    ~CifTextTagFactory() override;

    std::string start_bold() const override { return "<b>"; }
    std::string end_bold() const override { return "</b>"; }
    std::string start_italic() const override { return "<i>"; }
    std::string end_italic() const override { return "</i>"; }
    std::string start_subscript() const override { return "~"; }
    std::string end_subscript() const override { return "~"; }
    std::string start_superscript() const override { return "^"; }
    std::string end_superscript() const override { return "^"; }
    std::string end_overstrike() const override { return "\u0305"; }
    std::string line_break() const override { return "\n"; }
};
