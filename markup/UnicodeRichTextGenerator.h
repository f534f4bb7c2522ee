#pragma once

#include "markup/TwoPassRichTextGenerator.h"

/// Writes plain text: Greek letters, the characters that Unicode has for scripts where it has them
/// for a whole run, otherwise `_{...}` and `^{...}`, and a combining overline behind each character
/// under a bar. Control characters but line feeds and tabs are shown by their symbols, those that
/// turn the direction of writing by their numbers, such as "<U+202E>", and bytes that are not UTF-8
/// by U+FFFD: where a terminal knows no colours, it is shown this text. Lines are broken where a
/// reader counts, after or before braces too but not inside them.
class UnicodeRichTextGenerator : public TwoPassRichTextGenerator {
public:
    UnicodeRichTextGenerator();
    ~UnicodeRichTextGenerator() override;

    std::string mark_up_text(const RichTextData& data) const override;

protected:
    /// For a subclass with tags of its own; shares the factory.
    explicit UnicodeRichTextGenerator(THandle<RichTextTagFactory> tag_factory);

    void write_text(std::string& result, std::string_view text) const override;

    std::string compose(std::string_view text, const std::vector<Tag>& tags) const override;

    /// What compose() gives, for a subclass whose tags take no room on the line: appends those that
    /// the result lacks to `left_out`, with their positions in it and no partners.
    std::string compose_text(std::string_view text, const std::vector<Tag>& tags,
                             std::vector<Tag>& left_out) const;

private:
    mutable unsigned int line_length_ = 0;  // of the text in work
};
