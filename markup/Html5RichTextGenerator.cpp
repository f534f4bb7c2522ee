#include "markup/Html5RichTextGenerator.h"

#include <algorithm>
#include <iterator>

#include "markup/Html5TagFactory.h"
#include "markup/NestedStyles.h"
#include "markup/TextItemToHtml5Greek.h"
#include "text/GreekStyle.h"
#include "text/Position.h"

namespace {

/// One past the UTF-8 character at the front of `text`. A byte that continues none belongs to the
/// one before.
std::size_t end_of_character(std::string_view text) {
    const auto continues = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
    };
    std::size_t end = 1;
    while (end < text.size() && continues(text[end])) ++end;
    return end;
}

}  // namespace

Html5RichTextGenerator::Html5RichTextGenerator()
    : RichTextGenerator(make_handle<Html5TagFactory>(), make_handle<TextItemToHtml5Greek>()) {}

Html5RichTextGenerator::~Html5RichTextGenerator() = default;

std::string Html5RichTextGenerator::mark_up_text(const RichTextData& data) const {
    const std::string text = data.text();
    const NestedStyles nested(data.styles(), length_of(text));
    RichTextData::GreekStyles letters;
    std::copy_if(data.greek().begin(), data.greek().end(), std::back_inserter(letters),
                 [](const auto& style) { return style->symbol() != TextItem::no_symbol; });
    return RichTextGenerator::mark_up_text(RichTextData(text, data.line_length(), nested.styles(),
                                                        data.invisible(), letters,
                                                        data.replacement_text()));
}

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

unsigned int Html5RichTextGenerator::write_characters(std::string& result, std::string_view& text,
                                                      unsigned int limit) const {
    unsigned int characters = 0;
    std::size_t end = 0;
    for (; end < text.size() && characters < limit; ++characters) {
        end += end_of_character(text.substr(end));
    }
    escape(result, text.substr(0, end));
    text.remove_prefix(end);
    return characters;
}
