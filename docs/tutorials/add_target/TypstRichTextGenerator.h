#pragma once

#include "markup/NestingRichTextGenerator.h"

/// Writes Typst for a paragraph, a cell or an argument. All punctuation is escaped, line feeds
/// break lines, and bytes that are not UTF-8 become U+FFFD.
class TypstRichTextGenerator : public NestingRichTextGenerator {
public:
    TypstRichTextGenerator();
    ~TypstRichTextGenerator() override;

protected:
    void write_text(std::string& result, std::string_view text) const override;
    void add_letter(std::string& result, const std::string& letter, unsigned int& column,
                    unsigned int line_length) const override;
};
