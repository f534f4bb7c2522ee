#pragma once

#include "markup/RichTextGenerator.h"

/// Writes the text conventions of CIF files.
class CifRichTextGenerator : public RichTextGenerator {
public:
    CifRichTextGenerator();
    ~CifRichTextGenerator() override;
};
