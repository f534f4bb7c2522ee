#pragma once

#include "markup/Html5TagFactory.h"

/// The tags of CommonMark: stars for bold and italic, and those of HTML where Markdown has nothing.
class MarkdownTagFactory : public Html5TagFactory {
public:
    ~MarkdownTagFactory() override;

    std::string start_bold() const override { return "**"; }
    std::string end_bold() const override { return "**"; }
    std::string start_italic() const override { return "*"; }
    std::string end_italic() const override { return "*"; }
    /// HTML's, since Markdown's own breaks vanish at the end of a paragraph.
    std::string line_break() const override { return "<br>\n"; }
};
