#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// What Unicode's tables say of characters.

/// A blank or a line end of ASCII.
constexpr bool is_ascii_blank(char32_t code) {
    return code == ' ' || (code >= '\t' && code <= '\r');
}
/// Any blank or line end.
bool is_blank(char32_t code);
/// A mark that belongs to the character before it.
bool is_mark(char32_t code);
/// A mark that stands over or under letters of alphabets, which can do without.
bool is_accent(char32_t mark);
bool is_letter(char32_t code);
/// A hyphen, a dash or a minus sign.
bool is_dash(char32_t code);
/// Whether it shows nothing and takes no room.
bool is_ignorable(char32_t code);
/// What an apostrophe, a prime or a quotation mark is written with, "'" or several; empty for
/// others.
std::string_view apostrophes_of(char32_t code);
/// What is written in several ways that have no decompositions: "·" of "•", "/" of "⁄".
char32_t usual_form(char32_t code);

/// What a character consists of.
class Decomposition {
public:
    /// With case folding, and with compatible characters in place of raised, wide and other forms.
    /// Accents that stand by themselves are no blanks with accents, and stay.
    Decomposition(char32_t code, bool folds_case, bool compatible);

    std::u32string_view codes() const { return {codes_, size_}; }

private:
    static constexpr std::size_t capacity = 32;  // Unicode's longest has 18

    char32_t codes_[capacity];
    std::size_t size_;
};

/// The decomposed characters of a text in UTF-8, with marks in Unicode's order. O(n log m) for m
/// marks in a row.
std::u32string in_canonical_order(std::string_view text);
