#pragma once

#include "markup/RichTextGenerator.h"

/// Writes HTML5 for pages: text escaped, Greek letters in Unicode, UTF-8 passed through and counted
/// by its characters when lines are broken. Tags always nest: styles that cross are cut in pieces,
/// and what reaches beyond the text is closed at its end. A Greek style without a symbol shows the
/// characters that it covers.
class Html5RichTextGenerator : public RichTextGenerator {
public:
    Html5RichTextGenerator();
    ~Html5RichTextGenerator() override;

    std::string mark_up_text(const RichTextData& data) const override;

    /// Appends `text` to `result` with "&", "<", ">" and the double quote as character references.
    static void escape(std::string& result, std::string_view text);

protected:
    unsigned int write_characters(std::string& result, std::string_view& text,
                                  unsigned int limit) const override;
};
