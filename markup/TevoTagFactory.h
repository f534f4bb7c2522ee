#pragma once

#include "markup/ScriptTagFactory.h"

/// The database's own mark-up. "!" shifts the writing level down and "$" shifts it up, so that each
/// opens the one script and closes the other. Only the scripts have tags.
class TevoTagFactory : public ScriptTagFactory {
public:
    ~TevoTagFactory() override;

    std::string start_superscript() const override { return "$"; }
    std::string end_superscript() const override { return "!"; }
    std::string start_subscript() const override { return "!"; }
    std::string end_subscript() const override { return "$"; }
    std::string line_break() const override { return {}; }
};
