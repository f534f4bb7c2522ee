#include "markup/HtmlRichTextGenerator.h"

#include "markup/HtmlTagFactory.h"
#include "markup/TextItemToHtmlGreek.h"

HtmlRichTextGenerator::HtmlRichTextGenerator()
    : RichTextGenerator(make_handle<HtmlTagFactory>(), make_handle<TextItemToHtmlGreek>()) {}

HtmlRichTextGenerator::~HtmlRichTextGenerator() = default;

std::string HtmlRichTextGenerator::mark_up_text(const RichTextData& data) const {
    return RichTextGenerator::mark_up_text(data) + "<p>";
}
