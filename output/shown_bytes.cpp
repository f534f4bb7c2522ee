#include "output/shown_bytes.h"

#include <algorithm>

#include "markup/internal/controls.h"

namespace {

void append_number(std::string& text, std::string_view prefix, char32_t number, int digits) {
    text.append("<").append(prefix);
    append_hexadecimal(text, number, digits);
    text += '>';
}

void append_shown_character(std::string& text, const Utf8Character& character,
                            std::string_view bytes) {
    if (!character.valid) {
        for (const char byte : bytes) append_number(text, "", static_cast<unsigned char>(byte), 2);
    } else if (is_harmless(character)) {
        text += bytes;
    } else {
        append_number(text, "U+", character.code, 4);
    }
}

}  // namespace

std::string shown_bytes(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        const Utf8Character character = first_character(bytes);
        const std::string_view own = bytes.substr(0, character.size);
        if (own == "\n") {
            text += own;
        } else {
            append_shown_character(text, character, own);
        }
        bytes.remove_prefix(character.size);
    }
    return text;
}

std::string shown_in_line(std::string_view bytes, std::size_t most) {
    std::string text;
    for (std::size_t count = 0; !bytes.empty(); ++count) {
        if (count == most) return text + "...";
        const Utf8Character character = first_character(bytes);
        const std::string_view own = bytes.substr(0, character.size);
        if (own == "\n") {
            text += "\\n";
        } else if (own != "\r") {
            append_shown_character(text, character, own);
        }
        bytes.remove_prefix(character.size);
    }
    return text;
}
