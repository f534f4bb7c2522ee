#include "output/PageRichTextGenerator.h"

#include "markup/Html5RichTextGenerator.h"
#include "markup/TextItemToHtml5Greek.h"
#include "output/PageTagFactory.h"

PageRichTextGenerator::PageRichTextGenerator()
    : NestingRichTextGenerator(make_handle<PageTagFactory>(), make_handle<TextItemToHtml5Greek>()) {
}

PageRichTextGenerator::~PageRichTextGenerator() = default;

void PageRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    Html5RichTextGenerator::escape(result, text);
}
