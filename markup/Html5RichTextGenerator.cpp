#include "markup/Html5RichTextGenerator.h"

#include "markup/Html5TagFactory.h"
#include "markup/TextItemToHtml5Greek.h"
#include "markup/controls.h"

namespace {

/// Appends the character at the front of `text`, which is not empty, so that it shows and does
/// nothing else; returns its size.
std::size_t append_escaped(std::string& result, std::string_view text) {
    const char c = text.front();
    switch (c) {
        case '&':
            result += "&amp;";
            return 1;
        case '<':
            result += "&lt;";
            return 1;
        case '>':
            result += "&gt;";
            return 1;
        case '"':
            result += "&quot;";
            return 1;
        case '\t':
        case '\n':
            result += c;
            return 1;
        case '\0':  // HTML has no references to it and to those above U+007F
        case '\xC2':
            return append_shown(result, text);
        default:
            append_reference(result, static_cast<unsigned char>(c));
            return 1;
    }
}

bool stands_for_itself(char c) {
    return c != '&' && c != '<' && c != '>' && c != '"' && !may_begin_control(c);
}

}  // namespace

Html5RichTextGenerator::Html5RichTextGenerator()
    : NestingRichTextGenerator(make_handle<Html5TagFactory>(),
                               make_handle<TextItemToHtml5Greek>()) {}

Html5RichTextGenerator::~Html5RichTextGenerator() = default;

void Html5RichTextGenerator::escape(std::string& result, std::string_view text) {
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && stands_for_itself(text[plain])) ++plain;
        result += text.substr(0, plain);
        text.remove_prefix(plain);
        if (!text.empty()) text.remove_prefix(append_escaped(result, text));
    }
}

void Html5RichTextGenerator::write_text(std::string& result, std::string_view text) const {
    escape(result, text);
}
