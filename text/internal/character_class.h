#pragma once

#include <cctype>
#include <cstdio>

// The classes of characters that finders and searches tell apart: those of the standard
// classification functions in the process's current locale, byte by byte. The byte 255 belongs to
// no class: as a signed char it is the same as EOF.

/// What the standard functions take for `c`.
inline int classified(char c) { return c == '\xFF' ? EOF : static_cast<unsigned char>(c); }

/// Whether `c` is of that class.
/// @{
inline bool is_letter(char c) { return std::isalpha(classified(c)) != 0; }
inline bool is_digit(char c) { return std::isdigit(classified(c)) != 0; }
inline bool is_punctuation(char c) { return std::ispunct(classified(c)) != 0; }
inline bool is_space(char c) { return std::isspace(classified(c)) != 0; }
/// @}
/// `c` in that case; as it is where the locale knows no such form.
/// @{
inline char to_upper(char c) { return static_cast<char>(std::toupper(classified(c))); }
inline char to_lower(char c) { return static_cast<char>(std::tolower(classified(c))); }
/// @}
