#include "markup/Html5RichTextGenerator.h"

#include "markup/Html5TagFactory.h"
#include "markup/TextItemToHtml5Greek.h"
#include "markup/internal/controls.h"

namespace {

constexpr std::array<bool, 256> plain = ascii_but("&<>\"");

/// Appends the character at the front of `text`, which is not plain, so that it shows and does
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
        default:
            break;
    }
    const auto byte = static_cast<unsigned char>(c);
    if (byte > 0 && byte < 0x80) {  // HTML has no references to other control characters
        append_reference(result, byte);
        return 1;
    }
    std::string shown;
    const std::size_t size = append_shown(shown, text);
    Html5RichTextGenerator::escape(result, shown);
    return size;
}

}  // namespace

Html5RichTextGenerator::Html5RichTextGenerator()
    : NestingRichTextGenerator(make_handle<Html5TagFactory>(),
                               make_handle<TextItemToHtml5Greek>()) {}

Html5RichTextGenerator::~Html5RichTextGenerator() = default;

void Html5RichTextGenerator::escape(std::string& result, std::string_view text) {
    append_text(result, text, plain,
                [&](std::string_view rest) { return append_escaped(result, rest); });
}

void Html5RichTextGenerator::write_text(std::string& result, std::string_view text) const {
    escape(result, text);
}
