#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Control characters, which terminals may take for commands: U+0000 to U+001F, U+007F to U+009F.

[[gnu::visibility("hidden")]] bool is_control(char32_t code);

/// Whether the byte may be the first of a control character.
constexpr bool may_begin_control(char byte) {
    return (byte >= '\0' && byte < ' ') || byte == '\x7F' || byte == '\xC2';
}

/// What shows a control character: its Unicode symbol, or U+FFFD where it has none. Line feeds and
/// all other characters stay.
[[gnu::visibility("hidden")]] char32_t visible(char32_t code);

/// Appends the character at the front of `text`, which is not empty, so that no terminal takes it
/// for a command: a control character by what shows it, and what is not UTF-8 by U+FFFD. Returns
/// how many bytes of `text` these are.
[[gnu::visibility("hidden")]] std::size_t append_shown(std::string& result, std::string_view text);

/// Appends a character reference of HTML and Markdown: "&#27;".
[[gnu::visibility("hidden")]] void append_reference(std::string& result, char32_t code);
