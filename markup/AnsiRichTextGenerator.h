#pragma once

#include "markup/UnicodeRichTextGenerator.h"

/// Writes Unicode text for a terminal, with sequences that select bold, italic, underlined and
/// coloured characters. Each line selects what it needs and is reset at its end. Nothing of the
/// text reaches the terminal as a control: control characters are shown by their Unicode symbols,
/// those that turn the direction of writing by their numbers, such as "<U+202E>", and what is not
/// UTF-8 as replacement characters; only line feeds end lines.
class AnsiRichTextGenerator : public UnicodeRichTextGenerator {
public:
    AnsiRichTextGenerator();
    ~AnsiRichTextGenerator() override;

protected:
    void write_text(std::string& result, std::string_view text) const override;
    std::string compose(std::string_view text, const std::vector<Tag>& tags) const override;
};
