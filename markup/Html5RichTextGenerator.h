#pragma once

#include "markup/NestingRichTextGenerator.h"

/// Writes HTML5 for pages: text escaped, Greek letters in Unicode.
class Html5RichTextGenerator : public NestingRichTextGenerator {
public:
    Html5RichTextGenerator();
    ~Html5RichTextGenerator() override;

    /// Appends `text` to `result` with "&", "<", ">" and the double quote as character references
    /// and control characters but tabs and line feeds, of which NUL and those above U+007F become
    /// what shows them.
    static void escape(std::string& result, std::string_view text);

protected:
    void write_text(std::string& result, std::string_view text) const override;
};
