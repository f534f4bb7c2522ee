#include "markup/Html5RichTextGenerator.h"

#include "markup/Html5TagFactory.h"
#include "markup/TextItemToHtml5Greek.h"

Html5RichTextGenerator::Html5RichTextGenerator()
    : NestingRichTextGenerator(make_handle<Html5TagFactory>(),
                               make_handle<TextItemToHtml5Greek>()) {}

Html5RichTextGenerator::~Html5RichTextGenerator() = default;

void Html5RichTextGenerator::escape(std::string& result, std::string_view text) {
    for (const char c : text) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                result += c;
        }
    }
}

void Html5RichTextGenerator::write_text(std::string& result, std::string_view text) const {
    escape(result, text);
}
