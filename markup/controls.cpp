#include "markup/controls.h"

#include "markup/Utf8.h"

bool is_control(char32_t code) { return code < 0x20 || (code >= 0x7F && code < 0xA0); }

char32_t visible(char32_t code) {
    constexpr char32_t symbols_of_controls = 0x2400;
    constexpr char32_t symbol_of_delete = 0x2421;
    if (code == '\n' || !is_control(code)) return code;
    if (code < ' ') return symbols_of_controls + code;
    return code == 0x7F ? symbol_of_delete : U'\uFFFD';
}

std::size_t append_shown(std::string& result, std::string_view text) {
    const Utf8Character character = first_character(text);
    if (!character.valid || may_begin_control(text.front())) {
        append_utf8(result, visible(character.code));
    } else {
        result += text.substr(0, character.size);
    }
    return character.size;
}

void append_reference(std::string& result, char32_t code) {
    result += "&#" + std::to_string(code) + ';';
}
