#pragma once

#include "markup/RichTextGenerator.h"

/// Writes Qt rich text; the characters of the text are not escaped.
class QtRichTextGenerator : public RichTextGenerator {
public:
    QtRichTextGenerator();
    ~QtRichTextGenerator() override;
};
