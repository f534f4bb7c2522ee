#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 as a reader sees it. Bytes that are not UTF-8 count as one character each, or together as
// many as a decoder would replace at once.

/// What stands at the front of a text.
struct Utf8Character {
    char32_t code;     ///< U+FFFD where the bytes are not UTF-8.
    std::size_t size;  ///< In bytes.
    bool valid;        ///< Whether the bytes are UTF-8.
};

/// Whether the byte continues a character and begins none.
constexpr bool is_continuation_byte(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// Decodes the front of `text`, which is not empty.
Utf8Character first_character(std::string_view text);

/// Whether it is a diacritical mark, which is laid over the character before it.
constexpr bool combines(char32_t code) {
    return (code >= 0x300 && code <= 0x36F) || (code >= 0x20D0 && code <= 0x20F0);
}

/// One past the character at the front of `text`, which is not empty, with the accents, bars and
/// the like that combine with it.
std::size_t end_of_character(std::string_view text);

/// The last position up to `position` that is not inside a UTF-8 character.
unsigned int start_of_character(std::string_view text, unsigned int position);

/// Appends the bytes of a character, which is not a surrogate.
void append_utf8(std::string& result, char32_t code);
