#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "markup/Utf8.h"
#include "markup/internal/size_of_run.h"

// Characters that act where they are shown instead of being seen: control characters, which
// terminals may take for commands (U+0000 to U+001F, U+007F to U+009F), and those that turn the
// direction of writing, by which a line may be made to look like another (U+061C, U+200E, U+200F,
// U+202A to U+202E, U+2066 to U+2069).

constexpr bool is_control(char32_t code) { return code < 0x20 || (code >= 0x7F && code < 0xA0); }

constexpr bool turns_direction(char32_t code) {
    return code == 0x61C || code == 0x200E || code == 0x200F ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

/// Whether the character is UTF-8 and does nothing but to be seen.
constexpr bool is_harmless(const Utf8Character& character) {
    return character.valid && !is_control(character.code) && !turns_direction(character.code);
}

/// For each byte whether it is a character of ASCII that stands for itself: neither a control
/// character nor among `signs`.
constexpr std::array<bool, 256> ascii_but(std::string_view signs) {
    std::array<bool, 256> stands_for_itself{};
    for (char c = ' '; c <= '~'; ++c) {
        stands_for_itself[static_cast<unsigned char>(c)] = signs.find(c) == std::string_view::npos;
    }
    return stands_for_itself;
}

constexpr std::array<bool, 256> printable_ascii = ascii_but("");

/// Whether a harmless character of two bytes begins the text, told without decoding it: most
/// letters beyond ASCII are such.
inline bool begins_with_harmless_pair(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const bool may_act = lead == 0xC2 || lead == 0xD8;  // U+0080 and U+061C begin so
    return lead >= 0xC2 && lead < 0xE0 && !may_act && text.size() > 1 &&
           is_continuation_byte(text[1]);
}

/// The size of the front of `text` that may be written as it is: characters of ASCII that stand for
/// themselves, and harmless ones beyond.
inline std::size_t size_of_plain(std::string_view text,
                                 const std::array<bool, 256>& stands_for_itself) {
    std::size_t size = 0;
    while (true) {
        size += size_of_run(text.substr(size), stands_for_itself);
        if (size == text.size() || static_cast<unsigned char>(text[size]) < 0x80) return size;
        if (begins_with_harmless_pair(text.substr(size))) {
            size += 2;
            continue;
        }
        const Utf8Character character = first_character(text.substr(size));
        if (!is_harmless(character)) return size;
        size += character.size;
    }
}

/// Appends `text`: what is plain as it is, and the others each by `append_other`, which is given
/// the text from there on and returns how many bytes of it it has appended.
template <class AppendOther>
void append_text(std::string& result, std::string_view text,
                 const std::array<bool, 256>& stands_for_itself, AppendOther append_other) {
    while (!text.empty()) {
        const std::size_t size = size_of_plain(text, stands_for_itself);
        result += text.substr(0, size);
        text.remove_prefix(size);
        if (!text.empty()) text.remove_prefix(append_other(text));
    }
}

/// Appends the last digits of a hexadecimal number, in capitals.
inline void append_hexadecimal(std::string& result, char32_t number, int digits) {
    while (digits-- > 0) result += "0123456789ABCDEF"[number >> 4 * digits & 0xF];
}

/// Appends a reference to a character by its number: "&#xE9;".
inline void append_hexadecimal_reference(std::string& result, char32_t code) {
    int digits = 2;
    while (code >> 4 * digits != 0) ++digits;
    result += "&#x";
    append_hexadecimal(result, code, digits);
    result += ';';
}

/// Appends the character at the front of `text`, which is not empty, so that it is seen: a control
/// character by its Unicode symbol, or U+FFFD where it has none, what turns the direction by its
/// number, "<U+202E>", and what is not UTF-8 by U+FFFD. Line feeds stay. Returns how many bytes of
/// `text` these are.
inline std::size_t append_shown(std::string& result, std::string_view text) {
    constexpr char32_t symbols_of_controls = 0x2400;
    const Utf8Character character = first_character(text);
    const char32_t code = character.code;
    if (code == '\n' || is_harmless(character)) {
        result += text.substr(0, character.size);
    } else if (turns_direction(code)) {
        result += "<U+";
        append_hexadecimal(result, code, 4);
        result += '>';
    } else if (code < ' ') {
        append_utf8(result, symbols_of_controls + code);
    } else {
        result += code == 0x7F ? "␡" : "\uFFFD";
    }
    return character.size;
}

/// Appends a character reference of HTML and Markdown: "&#27;".
inline void append_reference(std::string& result, char32_t code) {
    result += "&#" + std::to_string(code) + ';';
}
