#pragma once

#include <optional>

// Letters with accents: one character where Unicode has one.

/// A letter and a combining mark.
struct Accented {
    char32_t letter, mark;
};

/// The character that the letter with the mark is, or 0. Knows the marks for which CIF text has
/// codes.
char32_t composed(char32_t letter, char32_t mark);
/// What composed() makes the character of.
std::optional<Accented> decomposed(char32_t character);
