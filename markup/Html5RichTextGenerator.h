#pragma once

#include "markup/NestingRichTextGenerator.h"

/// Writes HTML5 for pages: text escaped, Greek letters in Unicode. What it writes is UTF-8 and
/// turns no direction of writing but by its letters, from which a page isolates what stands beside
/// it.
class Html5RichTextGenerator : public NestingRichTextGenerator {
public:
    Html5RichTextGenerator();
    ~Html5RichTextGenerator() override;

    /// Appends `text` to `result` with "&", "<", ">" and the double quote as character references
    /// and control characters but tabs and line feeds. NUL becomes its symbol, U+0080 to U+009F and
    /// each part that is not UTF-8 U+FFFD, and what turns the direction of writing its number:
    /// "&lt;U+202E&gt;".
    static void escape(std::string& result, std::string_view text);

protected:
    void write_text(std::string& result, std::string_view text) const override;
};
