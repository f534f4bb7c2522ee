#include "TypstRichTextGenerator.h"

#include "TextItemToTypstGreek.h"
#include "TypstTagFactory.h"
#include "markup/Utf8.h"

namespace {

bool is_punctuation(char32_t code) {
    return (code > ' ' && code < '0') || (code > '9' && code < 'A') || (code > 'Z' && code < 'a') ||
           (code > 'z' && code < 0x7F);
}

}  // namespace

TypstRichTextGenerator::TypstRichTextGenerator()
    : NestingRichTextGenerator(make_handle<TypstTagFactory>(),
                               make_handle<TextItemToTypstGreek>()) {}

TypstRichTextGenerator::~TypstRichTextGenerator() = default;

void TypstRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        if (character.code == '\n') {
            result += tag_factory().line_break();
        } else {
            if (is_punctuation(character.code)) result += '\\';
            append_utf8(result, character.code);
        }
        text.remove_prefix(character.size);
    }
}

// A letter is mark-up and one character wide: it must neither be escaped nor cut.
void TypstRichTextGenerator::add_letter(std::string& result, const std::string& letter,
                                        unsigned int& column, unsigned int line_length) const {
    add_letter_as_mark_up(result, letter, column, line_length);
}
