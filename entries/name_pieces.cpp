#include "entries/name_pieces.h"

#include <algorithm>

#include "markup/Utf8.h"

namespace {

bool is_within(char32_t code, char32_t from, char32_t to) { return code >= from && code <= to; }

/// What the character becomes, 0 if it is left out; nothing where names have no such character.
std::optional<char32_t> plain(char32_t code) {
    constexpr std::u32string_view blanks = U"\t\n\r =\u00A0\u2009\u202F";
    constexpr std::u32string_view footnote_marks = U"*\u00A7\u00B6\u2020\u2021";
    constexpr std::u32string_view hyphens = U"-\u2010\u2011\u2013";
    constexpr std::u32string_view others = U".,'`\u2019";
    if (blanks.find(code) != blanks.npos) return U' ';
    if (footnote_marks.find(code) != footnote_marks.npos) return char32_t{0};
    if (hyphens.find(code) != hyphens.npos) return U'-';
    const bool is_letter = is_within(code | 0x20U, 'a', 'z') || is_within(code, 0xC0, 0x1FFF) ||
                           is_within(code, 0x2E80, 0xDFFF) || is_within(code, 0xF900, 0xFDFF);
    if (is_letter ? code != 0xD7 && code != 0xF7 : others.find(code) != others.npos) return code;
    return std::nullopt;
}

}  // namespace

std::optional<std::string> plain_name(std::string_view as_written) {
    std::string result;
    bool blank = false, has_other_script = false;
    while (!as_written.empty()) {
        const Utf8Character character = first_character(as_written);
        const std::optional<char32_t> code = plain(character.code);
        if (!character.valid || !code) return std::nullopt;
        as_written.remove_prefix(character.size);
        if (*code == ' ') blank = true;
        if (*code == ' ' || *code == 0) continue;
        const bool is_inside = !result.empty() && result.back() != '-';
        if (blank && is_inside && *code != '-' && *code != '.' && *code != ',') result += ' ';
        blank = false;
        append_utf8(result, *code);
        // Which has no capitals, and often other rules of what stands first.
        has_other_script |= is_within(*code, 0x590, 0x1DFF) || *code > 0x2E00;
    }
    if (has_other_script && result.find_first_of(" ,.") != result.npos) return std::nullopt;
    return result;
}

NamePieces split_name(std::string_view text) {
    NamePieces pieces;
    bool after_dot = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" ."), text.size());
        const bool has_dot = end < text.size() && text[end] == '.';
        if (end > 0) pieces.push_back({text.substr(0, end), has_dot, after_dot});
        after_dot = has_dot;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return pieces;
}

std::string_view text_of(const NamePieces& pieces, std::size_t from, std::size_t to) {
    if (from == to) return {};
    const char* const begin = pieces[from].text.data();
    const std::string_view last = pieces[to - 1].text;
    return {begin, static_cast<std::size_t>(last.data() + last.size() - begin)};
}
