#pragma once

#include "markup/NestingRichTextGenerator.h"

/// Writes HTML5 as Html5RichTextGenerator does, with classes for styles that HTML has no tag for.
class PageRichTextGenerator : public NestingRichTextGenerator {
public:
    PageRichTextGenerator();
    ~PageRichTextGenerator() override;

protected:
    void write_text(std::string& result, std::string_view text) const override;
};
