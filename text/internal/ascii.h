#pragma once

// The classes of characters of ASCII, whatever the locale: for what is written in a fixed syntax.

constexpr bool is_ascii_digit(char c) { return c >= '0' && c <= '9'; }
constexpr bool is_ascii_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
