#include "entries/written_value.h"

#include <algorithm>
#include <iterator>

#include "entries/cif_text.h"
#include "markup/Utf8.h"
#include "markup/internal/controls.h"

namespace {

constexpr std::string_view blanks = " \t";
constexpr char fold = '\\';

void refuse_what_no_file_holds(std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = first_character(text);
        if (!character.valid) throw UnwritableText("not UTF-8, which no CIF file holds");
        const char32_t code = character.code;
        const bool is_blank = code == '\t' || code == '\n';
        const bool is_control = (code < ' ' && !is_blank) || (code >= 0x7F && code < 0xA0);
        const bool is_none = (code & 0xFFFE) == 0xFFFE || (code >= 0xFDD0 && code <= 0xFDEF);
        if (is_control || is_none) {
            std::string message = "a character that no CIF file holds: U+";
            append_hexadecimal(message, code, code > 0xFFFF ? 6 : 4);
            throw UnwritableText(message);
        }
        text.remove_prefix(character.size);
    }
}

/// Whether a reader would take a word that begins so for one of the language.
bool begins_as_keyword(std::string_view text) {
    constexpr std::string_view keywords[] = {"data_", "loop_", "global_", "save_", "stop_"};
    const std::string word = in_lower_case(text.substr(0, 7));
    return std::any_of(std::begin(keywords), std::end(keywords),
                       [&word](std::string_view keyword) { return word.starts_with(keyword); });
}

bool can_be_bare(std::string_view text, bool is_version_2) {
    constexpr std::string_view first = "_#$'\";[]{}";
    if (text.empty() || text == "?" || text == "." || begins_as_keyword(text)) return false;
    if (first.find(text.front()) != std::string_view::npos) return false;
    return std::all_of(text.begin(), text.end(), [is_version_2](char c) {
        const bool is_ascii = c > ' ' && c < 0x7F;
        const bool is_delimiter = c == '[' || c == ']' || c == '{' || c == '}';
        return is_version_2 ? (is_ascii && !is_delimiter) || static_cast<unsigned char>(c) >= 0x80
                            : is_ascii;
    });
}

/// Version 1 ends a string at a quotation mark before a blank, readers also before a comment, and
/// version 2 at any.
bool can_be_quoted(std::string_view text, char quote, bool is_version_2) {
    constexpr std::string_view ending = " \t#";
    if (text.find('\n') != std::string_view::npos) return false;
    if (text.starts_with(quote) || text.ends_with(quote)) return false;
    for (std::size_t at = text.find(quote); at != std::string_view::npos;
         at = text.find(quote, at + 1)) {
        if (is_version_2 || ending.find(text[at + 1]) != std::string_view::npos) return false;
    }
    return true;
}

/// The quotation marks in which lines can stand in version 2, or nothing.
std::string_view triple_quotes_for(std::string_view text) {
    for (const std::string_view quotes : {"'''", "\"\"\""}) {
        if (text.find(quotes) == std::string_view::npos && !text.ends_with(quotes.front())) {
            return quotes;
        }
    }
    return {};
}

std::size_t characters_in(std::string_view line) {
    return static_cast<std::size_t>(std::count_if(line.begin(), line.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
    }));
}

/// The next line of a text, which is taken off; `goes_on` says whether another follows.
std::string_view take_line(std::string_view& text, bool& goes_on) {
    const std::size_t end = text.find('\n');
    goes_on = end != std::string_view::npos;
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(goes_on ? end + 1 : text.size());
    return line;
}

/// Whether a line would go on in the next if it stood in a text field whose lines are folded.
bool ends_with_fold(std::string_view line) {
    const std::size_t last = line.find_last_not_of(blanks);
    return last != std::string_view::npos && line[last] == fold;
}

struct TextShape {
    bool begins_line_with_semicolon = false;  // but for the first
    bool has_long_lines = false;
    bool begins_as_folded = false;
};

TextShape shape_of(std::string_view text) {
    TextShape shape;
    bool goes_on = true;
    for (bool first = true; goes_on; first = false) {
        const std::string_view line = take_line(text, goes_on);
        if (first) {
            const std::size_t last = line.find_last_not_of(blanks);
            shape.begins_as_folded = last == 0 && line[0] == fold;
        } else if (line.starts_with(';')) {
            shape.begins_line_with_semicolon = true;
        }
        const std::size_t quote = first ? 1 : 0;  // the one that begins the field
        if (line.size() + quote > longest_cif_line &&
            characters_in(line) + quote > longest_cif_line) {
            shape.has_long_lines = true;
        }
    }
    return shape;
}

/// How much of a line stands in its first part: all of one that is short enough, else up to a blank
/// where there is one near the end, and never with a semicolon behind it, which would end the
/// field.
std::size_t end_of_part(std::string_view line) {
    constexpr std::size_t near_end = 200;
    std::size_t end = 0;
    std::size_t behind_blank = 0;
    std::size_t last_possible = 0;
    for (std::size_t characters = 1; end < line.size(); ++characters) {
        if (characters >= longest_cif_line && last_possible > 0) {
            return behind_blank > 0 ? behind_blank : last_possible;
        }
        end += first_character(line.substr(end)).size;
        if (end < line.size() && line[end] == ';') continue;
        last_possible = end;
        if (line[end - 1] == ' ' && characters + near_end > longest_cif_line) behind_blank = end;
    }
    return line.size();
}

/// Appends a line in parts which a reader joins.
void append_folded(std::string& field, std::string_view line, std::string_view line_end) {
    for (std::size_t end = 0; (end = end_of_part(line)) < line.size(); line.remove_prefix(end)) {
        field.append(line.substr(0, end)).append(1, fold).append(line_end);
    }
    field += line;
    // A backslash of the text's own is kept by another behind it.
    if (ends_with_fold(line)) field.append(1, fold).append(line_end);
}

std::string text_field(std::string_view text, const TextShape& shape, const ValuePlace& place) {
    const bool folded = shape.has_long_lines || shape.begins_as_folded;
    std::string field;
    if (place.before > 0) field += place.line_end;
    field += ';';
    if (folded) field.append(1, fold).append(place.line_end);
    for (bool goes_on = true; goes_on;) {
        const std::string_view line = take_line(text, goes_on);
        if (folded) {
            append_folded(field, line, place.line_end);
        } else {
            field += line;
        }
        if (goes_on) field += place.line_end;
    }
    return field.append(place.line_end).append(";");
}

/// The text in quotes in which lines can stand in version 2, where it can stand so.
std::string in_triple_quotes(std::string_view text, const ValuePlace& place) {
    const std::string_view quotes = triple_quotes_for(text);
    const std::size_t first_line = std::min(text.find('\n'), text.size());
    const std::size_t last_line = text.size() - (text.rfind('\n') + 1);  // npos + 1 is 0
    const bool one_line = first_line == text.size();
    const std::size_t first = place.before + quotes.size() + first_line;
    const std::size_t last = (one_line ? first : last_line) + quotes.size() + place.behind;
    if (quotes.empty() || std::max(first, last) > longest_cif_line) return "";
    std::string value(quotes);
    for (bool goes_on = true; goes_on;) {
        value += take_line(text, goes_on);
        if (goes_on) value += place.line_end;
    }
    return value.append(quotes);
}

/// The value on one line, where it can stand so.
std::string on_one_line(std::string_view text, CifQuoting quoting, bool is_version_2) {
    std::string value;
    switch (quoting) {
        case CifQuoting::bare:
            if (can_be_bare(text, is_version_2)) value = text;
            break;
        case CifQuoting::single_quotes:
        case CifQuoting::double_quotes: {
            const char quote = quoting == CifQuoting::single_quotes ? '\'' : '"';
            if (can_be_quoted(text, quote, is_version_2)) {
                value.append(1, quote).append(text).append(1, quote);
            }
            break;
        }
        default:
            break;
    }
    return value;
}

}  // namespace

std::string written_value(std::string_view text, CifQuoting quoting, const ValuePlace& place) {
    const std::string plain = with_plain_line_ends(text);
    refuse_what_no_file_holds(plain);
    const std::size_t around = place.before + place.behind;
    if (quoting != CifQuoting::text_field && quoting != CifQuoting::triple_quotes) {
        for (const CifQuoting possible :
             {quoting, CifQuoting::bare, CifQuoting::single_quotes, CifQuoting::double_quotes}) {
            std::string value = on_one_line(plain, possible, place.is_version_2);
            if (!value.empty() && around + value.size() <= longest_cif_line) return value;
        }
    }
    const TextShape shape = shape_of(plain);
    const bool wants_quotes =
        quoting == CifQuoting::triple_quotes || shape.begins_line_with_semicolon;
    if (place.is_version_2 && wants_quotes && !shape.has_long_lines) {
        std::string value = in_triple_quotes(plain, place);
        if (!value.empty()) return value;
    }
    const bool ends_too_early =
        shape.begins_line_with_semicolon || (shape.has_long_lines && plain.starts_with(';'));
    if (ends_too_early) {
        throw UnwritableText("a line that begins with ';', which would end the text");
    }
    return text_field(plain, shape, place);
}
