#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "text/TextItem.h"

// The codes of the texts in CIF files, as International Tables for Crystallography, volume G,
// section 2.2.7.4, and the journals have them.

/// A code and the character that it stands for.
struct CifCode {
    std::string_view code;
    char32_t character;
};

/// The longest code at the front of a text, or null.
const CifCode* first_cif_code(std::string_view text);
/// The code of a character, or null.
const CifCode* cif_code_of(char32_t character);
/// Whether one blank behind the code belongs to it.
bool takes_blank(const CifCode& code);

constexpr std::size_t cif_accent_size = 2;
/// The combining mark of the accent at the front of a text, or 0; an accent stands before its
/// letter.
char32_t first_cif_accent(std::string_view text);
/// The sign behind the backslash of the code of an accent, or 0.
char cif_accent_of(char32_t mark);

/// Whether the character may carry an accent.
constexpr bool is_letter_of_text(char32_t code) {
    const bool is_ascii_letter = (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
    const bool is_mark = code >= 0x300 && code < 0x370;
    return is_ascii_letter ||
           (code >= 0xC0 && code < 0x2000 && code != U'×' && code != U'÷' && !is_mark);
}

/// A reference to a character, as HTML has them: "&lt;", "&#181;", "&#x00B5;", "&alpha;".
struct CifEntity {
    std::size_t size;    ///< Of the reference; 0: none stands there.
    char32_t character;  ///< 0: no character has that name or number.
};

/// The one at the front of a text.
CifEntity first_cif_entity(std::string_view text);

/// What opens or closes a style in CIF text.
struct CifMark {
    enum Kind : unsigned char { tilde, caret, italic, bold, subscript, superscript };
    static constexpr std::size_t kinds = superscript + 1;

    std::string_view text;
    Kind kind;
    bool opens, closes;  ///< A tilde and a caret may do either.
};

/// The mark at the front of a text, or null.
const CifMark* first_cif_mark(std::string_view text);

/// Whether a reference or a mark stands at the front of a text, or may when the text goes on.
bool may_begin_entity_or_mark(std::string_view text);

/// The Greek letter that the character is, or TextItem::no_symbol.
constexpr TextItem::GreekSymbol greek_symbol(char32_t code) {
    constexpr char32_t alpha = U'α', final_sigma = U'ς', omega = U'ω';
    if (code == U'Δ') return TextItem::cdelta;
    if (code == U'Λ') return TextItem::clambda;
    if (code < alpha || code > omega || code == final_sigma) return TextItem::no_symbol;
    return static_cast<TextItem::GreekSymbol>(code - alpha + (code < final_sigma ? 1 : 0));
}
