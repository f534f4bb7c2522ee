#pragma once

#include "markup/UnicodeTagFactory.h"

/// The tags of Unicode text, and the sequences of ECMA-48 that select how a terminal draws. A bar
/// over the text is drawn as a line under it too.
class AnsiTagFactory : public UnicodeTagFactory {
public:
    ~AnsiTagFactory() override;

    std::string start_bold() const override { return "\x1b[1m"; }
    std::string end_bold() const override { return "\x1b[22m"; }
    std::string start_italic() const override { return "\x1b[3m"; }
    std::string end_italic() const override { return "\x1b[23m"; }
    /// The bright and the normal colours of a terminal are the light and the dark ones.
    std::string start_color(TextItem::ColorName color) const override;
    std::string end_color() const override { return "\x1b[39m"; }
    std::string start_overstrike() const override { return "\x1b[4m"; }
    std::string end_overstrike() const override { return "\x1b[24m"; }
};
