#pragma once

#include "markup/RichTextGenerator.h"

/// The base of the targets that escape the text and must nest their tags. UTF-8 is passed through
/// and counted by its characters when lines are broken. Styles that cross are cut in pieces, none
/// inside a character, and what reaches beyond the text is closed at its end. A Greek style without
/// a symbol shows the characters that it covers.
class NestingRichTextGenerator : public RichTextGenerator {
public:
    using RichTextGenerator::RichTextGenerator;
    ~NestingRichTextGenerator() override;

    /// O((n + p) log (m + p)) for n characters and m styles cut into p pieces; where the styles do
    /// not cross, p is m.
    std::string mark_up_text(const RichTextData& data) const override;

protected:
    /// Appends whole characters in the target's form; bytes that are not UTF-8 may be among them.
    virtual void write_text(std::string& result, std::string_view text) const = 0;

    /// What add_letter() does where letters are mark-up: appends `letter` as it is, for one
    /// character of its line.
    void add_letter_as_mark_up(std::string& result, const std::string& letter, unsigned int& column,
                               unsigned int line_length) const;

    unsigned int write_characters(std::string& result, std::string_view& text,
                                  unsigned int limit) const override;
};
