#pragma once

#include "markup/TwoPassRichTextGenerator.h"

/// Writes Markdown, as CommonMark 0.30 has it, for a paragraph, an item of a list or a cell of a
/// table. Punctuation that Markdown might read is escaped, and addresses, of which dialects
/// would make links, are cut by a sign of theirs in an HTML element, "www<span>.</span>a.b". Stars
/// count as bold or italic only beside certain characters; where they would not, HTML's tags stand
/// in their place. A style inside another of its kind writes none. Line breaks and other control
/// characters of the text become character references; what turns the direction of writing is shown
/// by its number, such as "\<U+202E\>", and each part that is not UTF-8 by U+FFFD.
class MarkdownRichTextGenerator : public TwoPassRichTextGenerator {
public:
    MarkdownRichTextGenerator();
    ~MarkdownRichTextGenerator() override;

protected:
    void write_text(std::string& result, std::string_view text) const override;
    void write_tag(std::string& result, const std::string& tag, TextItemStyle::Kind kind,
                   bool opens) const override;
    std::string compose(std::string_view text, const std::vector<Tag>& tags) const override;
};
