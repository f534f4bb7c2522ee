#include "markup/MarkdownRichTextGenerator.h"

#include <algorithm>

#include "markup/MarkdownTagFactory.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "markup/internal/controls.h"
#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

using Kind = TextItemStyle::Kind;

bool begins_line(std::string_view result) { return result.empty() || result.back() == '\n'; }

/// Whether nothing but the number of an item of a list, of nine digits at most, begins the line.
bool follows_item_number(std::string_view result) {
    const std::size_t earliest = result.size() - std::min<std::size_t>(result.size(), 9);
    std::size_t start = result.size();
    while (start > earliest && is_ascii_digit(result[start - 1])) --start;
    return start < result.size() && begins_line(result.substr(0, start));
}

/// Whether the front of `text` might mean something to a parser at the end of `result`. Some signs
/// mean it only to the dialects of Markdown: "~", "|" and "$".
bool must_escape(std::string_view result, std::string_view text) {
    constexpr std::string_view always = "\\`*_[]<>&~|$";
    const char c = text.front();
    if (always.find(c) != std::string_view::npos) return true;
    // Lines of headings, rules and lists; "-1" and "2.5" are not among them.
    const bool goes_on = text.size() > 1 && (is_ascii_letter(text[1]) || is_ascii_digit(text[1]));
    if (c == '#' || c == '=') return begins_line(result);
    if (c == '-' || c == '+') return !goes_on && begins_line(result);
    return (c == '.' || c == ')') && !goes_on && follows_item_number(result);
}

/// What a parser never reads alone, beside the characters beyond ASCII.
constexpr std::array<bool, 256> plain = ascii_but(" \\`*_[]<>&~|$#=-+.)/:@");

/// Whether the last letters are those of `word`, which are small ones.
bool ends_with_word(std::string_view text, std::string_view word) {
    if (text.size() < word.size()) return false;
    text.remove_prefix(text.size() - word.size());
    return std::equal(word.begin(), word.end(), text.begin(), [](char small, char c) {
        return is_ascii_letter(c) &&
               (static_cast<unsigned char>(c) | 0x20U) == static_cast<unsigned char>(small);
    });
}

/// Whether dialects make a link of an address with the sign at the end of `result`: "http://a.b",
/// "www.a.b", "mailto:a@b.c" or "a@b.c".
bool makes_link(std::string_view result, char sign) {
    switch (sign) {
        case '/':
            return result.ends_with('/');
        case '.':
            return ends_with_word(result, "www");
        case ':':
            return ends_with_word(result, "mailto");
        case '@':
            return !begins_line(result) && result.back() != ' ';
        default:
            return false;
    }
}

/// Appends the sign of ASCII at the front of `text` so that it shows and does nothing else.
void append_sign(std::string& result, std::string_view text) {
    const char c = text.front();
    if (c == ' ' && begins_line(result)) {
        append_reference(result, U' ');
    } else if (makes_link(result, c)) {
        // Escapes and references would not do: some look for addresses when they have read those.
        result.append("<span>").append(1, c).append("</span>");
    } else {
        if (must_escape(result, text)) result += '\\';
        result += c;
    }
}

/// How a parser of Markdown classes what stands beside stars.
enum class Neighbour { blank, punctuation, letter, unsafe };

/// The letters of texts that are sure to count as such.
bool is_letter_beyond_ascii(char32_t code) {
    const bool latin = code >= 0xC0 && code <= 0x24F && code != 0xD7 && code != 0xF7;
    return latin || (code >= 0x391 && code <= 0x3C9);
}

Neighbour neighbour(std::string_view text) {
    if (text.empty() || text.front() == ' ' || text.front() == '\n') return Neighbour::blank;
    const char c = text.front();
    if (is_ascii_letter(c) || is_ascii_digit(c)) return Neighbour::letter;
    if (c > ' ' && c < '\x7F') return Neighbour::punctuation;
    const Utf8Character character = first_character(text);
    return is_letter_beyond_ascii(character.code) ? Neighbour::letter : Neighbour::unsafe;
}

Neighbour neighbour_before(std::string_view text) {
    if (text.empty()) return Neighbour::blank;
    return neighbour(text.substr(start_of_character(text, to_position(text.size() - 1))));
}

/// Whether stars between the two count, `inner` being on the side that they enclose.
bool counts(Neighbour outer, Neighbour inner) {
    if (outer == Neighbour::unsafe) return false;
    if (inner == Neighbour::punctuation) return outer != Neighbour::letter;
    return inner == Neighbour::letter;
}

}  // namespace

MarkdownRichTextGenerator::MarkdownRichTextGenerator()
    : TwoPassRichTextGenerator(make_handle<MarkdownTagFactory>(),
                               make_handle<TextItemToUnicodeGreek>()) {}

MarkdownRichTextGenerator::~MarkdownRichTextGenerator() = default;

void MarkdownRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    append_text(result, text, plain, [&](std::string_view rest) {
        const Utf8Character character = first_character(rest);
        if (is_harmless(character)) {
            append_sign(result, rest);
        } else if (character.valid && is_control(character.code)) {
            append_reference(result, character.code);
        } else {
            std::string shown;
            append_shown(shown, rest);
            write_text(result, shown);
        }
        return character.size;
    });
}

// Only stars depend on what stands beside them.
void MarkdownRichTextGenerator::write_tag(std::string& result, const std::string& tag, Kind kind,
                                          bool opens) const {
    if (kind == Kind::bold || kind == Kind::italic) {
        TwoPassRichTextGenerator::write_tag(result, tag, kind, opens);
    } else {
        result += tag;
    }
}

std::string MarkdownRichTextGenerator::compose(std::string_view text,
                                               const std::vector<Tag>& tags) const {
    const auto stars_count = [&](std::size_t i) {
        const std::size_t position = tags[i].position;
        // Side by side, stars would make one run of them.
        if (i > 0 && tags[i - 1].position == position) return false;
        if (i + 1 < tags.size() && tags[i + 1].position == position) return false;
        const Neighbour before = neighbour_before(text.substr(0, position));
        const Neighbour after = neighbour(text.substr(position));
        return tags[i].opens ? counts(before, after) : counts(after, before);
    };

    std::string result;
    result.reserve(text.size() + 8 * tags.size());
    std::size_t written = 0;
    unsigned int bold = 0, italic = 0;  // styles that stand open
    for (std::size_t i = 0; i < tags.size(); ++i) {
        const Tag& tag = tags[i];
        result += text.substr(written, tag.position - written);
        written = tag.position;
        const bool is_bold = tag.kind == Kind::bold;
        unsigned int& depth = is_bold ? bold : italic;
        if (!tag.opens) --depth;
        const bool outermost = depth == 0;
        if (tag.opens) ++depth;
        if (!outermost) continue;
        if (stars_count(i) && stars_count(tag.partner)) {
            result += tag.text;
        } else {
            result += tag.opens ? "<" : "</";
            result += is_bold ? "strong>" : "em>";
        }
    }
    result += text.substr(written);
    if (result.ends_with(' ')) {
        result.pop_back();
        append_reference(result, ' ');
    }
    return result;
}
