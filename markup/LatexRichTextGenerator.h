#pragma once

#include "markup/NestingRichTextGenerator.h"

/// Writes LaTeX for a paragraph, a table cell or an argument of a command. The text is escaped,
/// ligatures of punctuation included; bytes that are not UTF-8, control characters and those
/// that turn the direction of writing are shown as their hexadecimal numbers between angle
/// brackets, such as "<1B>" and "<202E>". Letters beyond ASCII are for the document's input
/// encoding and fonts.
class LatexRichTextGenerator : public NestingRichTextGenerator {
public:
    LatexRichTextGenerator();
    ~LatexRichTextGenerator() override;

    std::string mark_up_text(const RichTextData& data) const override;

protected:
    void write_text(std::string& result, std::string_view text) const override;
    void add_letter(std::string& result, const std::string& letter, unsigned int& column,
                    unsigned int line_length) const override;
};
