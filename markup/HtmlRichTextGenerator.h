#pragma once

#include "markup/RichTextGenerator.h"

/// Writes HTML with font tags, a Symbol font for Greek letters and "<p>" at the end; the characters
/// of the text are not escaped. Html5RichTextGenerator writes what today's browsers show.
class HtmlRichTextGenerator : public RichTextGenerator {
public:
    HtmlRichTextGenerator();
    ~HtmlRichTextGenerator() override;

    std::string mark_up_text(const RichTextData& data) const override;
};
