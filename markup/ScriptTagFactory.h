#pragma once

#include "markup/RichTextTagFactory.h"

/// The base of the targets that have tags for the scripts, and for other styles at most a few.
/// An addition of this library, as are the targets beside the database's mark-up and CIF that build
/// on it: a host that knows RichTextTagFactory alone misses nothing.
class ScriptTagFactory : public RichTextTagFactory {
public:
    ~ScriptTagFactory() override;

    std::string start_bold() const override { return {}; }
    std::string end_bold() const override { return {}; }
    std::string start_italic() const override { return {}; }
    std::string end_italic() const override { return {}; }
    std::string start_color(TextItem::ColorName /*color*/) const override { return {}; }
    std::string end_color() const override { return {}; }
    std::string start_greek() const override { return {}; }
    std::string end_greek() const override { return {}; }
    std::string start_overstrike() const override { return {}; }
    std::string end_overstrike() const override { return {}; }
    std::string start_invisible() const override { return {}; }
    std::string end_invisible() const override { return {}; }
    std::string start_replacement_text() const override { return {}; }
    std::string end_replacement_text() const override { return {}; }
};
