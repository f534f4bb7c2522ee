#include "markup/LatexRichTextGenerator.h"

#include "markup/LatexTagFactory.h"
#include "markup/TextItemToLatexGreek.h"
#include "markup/internal/controls.h"

namespace {

/// What stands for an ASCII character that means something to LaTeX, or null.
const char* command_for(char c) {
    switch (c) {
        case '#':
            return "\\#";
        case '$':
            return "\\$";
        case '%':
            return "\\%";
        case '&':
            return "\\&";
        case '_':
            return "\\_";
        case '{':
            return "\\{";
        case '}':
            return "\\}";
        case '~':
            return "\\textasciitilde{}";
        case '^':
            return "\\textasciicircum{}";
        case '\\':
            return "\\textbackslash{}";
        // The fonts of LaTeX's oldest encoding, still the default, have others in these places.
        case '<':
            return "\\textless{}";
        case '>':
            return "\\textgreater{}";
        case '|':
            return "\\textbar{}";
        case '"':
            return "\\symbol{34}";  // babel makes shorthands of the character itself
        case '`':
            return "\\textasciigrave{}";
        case '\n':
            return "\\leavevmode\\newline{}";
        default:
            return nullptr;
    }
}

/// What neither means anything to LaTeX nor depends on what stands before it.
constexpr std::array<bool, 256> plain = ascii_but("#$%&_{}~^\\<>|\"` [*-',");

/// Whether two of them make a dash or a quotation mark.
bool makes_ligature(char c) { return c == '-' || c == '\'' || c == ','; }

/// Whether LaTeX would drop a space here: at the beginning and behind another, closed groups
/// between.
bool swallows_space(const std::string& result) {
    const std::size_t last = result.find_last_not_of('}');
    return last == std::string::npos || result[last] == ' ' || result[last] == '{';
}

void append_number(std::string& result, char32_t number) {
    result += "\\textless{}";
    append_hexadecimal(result, number, number < 0x100 ? 2 : 4);
    result += "\\textgreater{}";
}

void append_ascii(std::string& result, char c) {
    if (const char* command = command_for(c)) {
        result += command;
    } else if (c == ' ') {
        result += swallows_space(result) ? "\\ " : " ";
    } else if (result.empty() && (c == '[' || c == '*')) {
        result += {'{', c, '}'};  // behind the \\ of a table it would be an argument
    } else if (makes_ligature(c)) {
        if (!result.empty() && result.back() == c) result += "{}";
        result += c;
    } else {
        result += c;
    }
}

}  // namespace

LatexRichTextGenerator::LatexRichTextGenerator()
    : NestingRichTextGenerator(make_handle<LatexTagFactory>(),
                               make_handle<TextItemToLatexGreek>()) {}

LatexRichTextGenerator::~LatexRichTextGenerator() = default;

std::string LatexRichTextGenerator::mark_up_text(const RichTextData& data) const {
    std::string result = NestingRichTextGenerator::mark_up_text(data);
    if (result.ends_with(' ') && !result.ends_with("\\ "))
        result.insert(result.size() - 1, 1, '\\');
    return result;
}

void LatexRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    append_text(result, text, plain, [&](std::string_view rest) {
        const Utf8Character character = first_character(rest);
        if (!character.valid) {
            for (const char byte : rest.substr(0, character.size)) {
                append_number(result, static_cast<unsigned char>(byte));
            }
        } else if (character.code == '\n' || is_harmless(character)) {
            append_ascii(result, rest.front());
        } else {
            append_number(result, character.code);
        }
        return character.size;
    });
}

void LatexRichTextGenerator::add_letter(std::string& result, const std::string& letter,
                                        unsigned int& column, unsigned int line_length) const {
    add_letter_as_mark_up(result, letter, column, line_length);
}
