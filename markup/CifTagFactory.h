#pragma once

#include "markup/ScriptTagFactory.h"

/// The text conventions of CIF files: one character both opens and closes a script. Only the
/// scripts have tags.
class CifTagFactory : public ScriptTagFactory {
public:
    ~CifTagFactory() override;

    std::string start_superscript() const override { return "^"; }
    std::string end_superscript() const override { return "^"; }
    std::string start_subscript() const override { return "~"; }
    std::string end_subscript() const override { return "~"; }
    std::string line_break() const override { return "\n"; }
};
