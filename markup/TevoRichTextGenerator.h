#pragma once

#include "markup/RichTextGenerator.h"

/// Writes the database's own mark-up.
class TevoRichTextGenerator : public RichTextGenerator {
public:
    TevoRichTextGenerator();
    ~TevoRichTextGenerator() override;
};
