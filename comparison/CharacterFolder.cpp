#include "comparison/CharacterFolder.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "comparison/unicode.h"
#include "markup/Utf8.h"
#include "markup/ascii_text.h"

namespace {

constexpr CharacterFolder::PlainBytes plain_bytes(bool letter_case, bool apostrophes, bool blanks) {
    CharacterFolder::PlainBytes bytes{};
    for (unsigned char c = 1; c < 0x80; ++c) {
        char& byte = bytes[c];
        byte = static_cast<char>(c);
        if (letter_case && c >= 'A' && c <= 'Z') byte = static_cast<char>(c - 'A' + 'a');
        if (apostrophes && c == '`') byte = '\'';
        if (blanks && is_ascii_blank(c)) byte = ' ';
        if (apostrophes && c == '"') byte = 0;
    }
    return bytes;
}

// By what matters to ASCII alone: letter case 1, apostrophes 2, blanks 4.
constexpr CharacterFolder::PlainBytes all_plain_bytes[] = {
    plain_bytes(false, false, false), plain_bytes(true, false, false),
    plain_bytes(false, true, false),  plain_bytes(true, true, false),
    plain_bytes(false, false, true),  plain_bytes(true, false, true),
    plain_bytes(false, true, true),   plain_bytes(true, true, true),
};

bool is_greek(char32_t code) { return code >= U'Α' && code <= U'ω'; }

/// Forms of Greek letters; whatever else is folded, they have the letters' names.
bool is_greek_form(char32_t code) { return code == U'µ' || (code >= U'ϐ' && code <= U'ϵ'); }

bool is_overline(char32_t code) { return code == 0x304 || code == 0x305; }

/// The size of the blanks at the front of a text.
std::size_t size_of_blanks(std::string_view text) {
    std::size_t size = 0;
    while (size < text.size()) {
        const Utf8Character next = first_character(text.substr(size));
        if (!next.valid || !is_blank(next.code)) break;
        size += next.size;
    }
    return size;
}

/// What comes nearest to a Latin or a Greek letter, or itself where nothing does.
std::string in_ascii(char32_t code) {
    std::string character;
    append_utf8(character, code);
    std::string folded = folded_to_ascii(character);
    return folded == "?" ? character : folded;
}

/// Appends that; most letters have been looked up before.
void append_in_ascii(char32_t code, std::string& result) {
    constexpr char32_t end_of_greek = 0x400;
    static const std::vector<std::string> known = [] {
        std::vector<std::string> all;
        for (char32_t letter = 0; letter < end_of_greek; ++letter) all.push_back(in_ascii(letter));
        return all;
    }();
    result += code < end_of_greek ? known[code] : in_ascii(code);
}

bool begins_with_mark(std::string_view text) {
    if (text.empty() || static_cast<unsigned char>(text.front()) < 0x80) return false;
    const Utf8Character first = first_character(text);
    return first.valid && is_mark(first.code);
}

}  // namespace

CharacterFolder::CharacterFolder(const Folding& folding)
    : folding_(folding),
      plain_bytes_(all_plain_bytes[(folding.letter_case ? 1U : 0U) +
                                   (folding.apostrophes ? 2U : 0U) + (folding.blanks ? 4U : 0U)]) {}

std::size_t CharacterFolder::append_plain(std::string_view text, std::string& result) const {
    // Kept at hand: what is written might be anywhere.
    const char* const bytes = plain_bytes_.data();
    const char blank = folding_.blanks ? ' ' : '\0';
    const auto folded = [bytes](char c) { return bytes[static_cast<unsigned char>(c)]; };
    std::size_t size = 0;
    for (char before = 0; size < text.size(); ++size) {
        const char now = folded(text[size]);
        if (now == 0 || (now == blank && before == blank)) break;
        before = now;
    }
    if (size == 0) return 0;
    if (size < text.size()) {  // the last one may be no character by itself
        const bool may_be_one_of_blanks = folded(text[size - 1]) == blank;
        if (may_be_one_of_blanks || begins_with_mark(text.substr(size))) --size;
    }
    const std::size_t before = result.size();
    result.resize(before + size);
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size),
                   result.begin() + static_cast<std::ptrdiff_t>(before), folded);
    return size;
}

std::size_t CharacterFolder::append_character(std::string_view text, std::string& result) const {
    const Utf8Character first = first_character(text);
    if (!first.valid) {
        result += text.front();
        return 1;
    }
    std::size_t size = first.size;
    if (is_blank(first.code)) {
        if (folding_.blanks) {
            result += ' ';
            return size_of_blanks(text);
        }
    } else {
        while (begins_with_mark(text.substr(size))) size += first_character(text.substr(size)).size;
    }
    append_folded(in_canonical_order(text.substr(0, size)), result);
    return size;
}

/// Appends a base and its marks, folded.
void CharacterFolder::append_folded(std::u32string_view codes, std::string& result) const {
    char32_t letter = 0;  // that the marks stand on
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const char32_t code = codes[i];
        const bool is_digit = code >= '0' && code <= '9';
        if (folding_.forms && is_digit && i + 1 < codes.size() && is_overline(codes[i + 1])) {
            result += '-';  // as crystallographers write it
            result += static_cast<char>(code);
            ++i;
            continue;
        }
        const bool compatible = folding_.forms || (folding_.greek && is_greek_form(code));
        const Decomposition parts(code, folding_.letter_case, compatible);
        for (const char32_t part : parts.codes()) {
            if (is_mark(part)) {
                append_mark(part, letter, result);
            } else {
                append_base(part, result);
                letter = is_letter(part) ? part : 0;
            }
        }
    }
}

void CharacterFolder::append_mark(char32_t mark, char32_t letter, std::string& result) const {
    constexpr char32_t diaeresis = 0x308;
    constexpr std::u32string_view with_umlaut = U"aouAOU";
    if (folding_.umlauts && mark == diaeresis && with_umlaut.find(letter) != with_umlaut.npos) {
        result += 'e';
    } else if (!(folding_.accents && letter != 0 && is_accent(mark)) &&
               !(folding_.forms && is_ignorable(mark))) {
        append_utf8(result, mark);
    }
}

/// Appends what is no mark, decomposed before.
void CharacterFolder::append_base(char32_t code, std::string& result) const {
    constexpr char32_t soft_hyphen = 0xAD, first_latin = 0xC0, end_of_latin = 0x250;
    constexpr char32_t final_sigma = U'ς', capital_sharp_s = U'ẞ';
    if (folding_.forms) code = usual_form(code);
    if (folding_.forms && is_ignorable(code)) return;
    if (folding_.dashes && code == soft_hyphen) return;
    const bool is_latin = (code >= first_latin && code < end_of_latin) || code == capital_sharp_s;
    if (folding_.blanks && is_blank(code)) {
        result += ' ';
    } else if (folding_.dashes && is_dash(code)) {
        result += '-';
    } else if (const auto folded = apostrophes_of(code); folding_.apostrophes && !folded.empty()) {
        result += folded;
    } else if ((folding_.greek && is_greek(code)) || (folding_.accents && is_latin)) {
        append_in_ascii(code == final_sigma ? U'σ' : code, result);
    } else {
        append_utf8(result, code);
    }
}
