#include "markup/CifTextRichTextGenerator.h"

#include "markup/CifTextTagFactory.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "markup/Utf8.h"
#include "markup/internal/cif_codes.h"
#include "markup/internal/compositions.h"
#include "markup/internal/controls.h"
#include "markup/internal/size_of_run.h"

namespace {

using Kind = TextItemStyle::Kind;

constexpr std::string_view overline = "\u0305";
constexpr std::array<bool, 256> stands_for_itself = ascii_but("\\~^&<-+");
constexpr std::size_t longest_rest = 10;  // of a code, behind two bytes of it

bool is_ascii(char c) { return static_cast<unsigned char>(c) < 0x80; }

bool is_dash(char c) { return c == '-' || c == '+'; }

/// How much of the front of a text stands for itself, also behind other text; a dash does behind
/// what is none.
std::size_t size_of_plain_front(std::string_view text) {
    std::size_t size = 0;
    do {
        size += size_of_run(text.substr(size), stands_for_itself);
    } while (size > 0 && size < text.size() && is_dash(text[size]) && !is_dash(text[size - 1]) &&
             ++size < text.size());
    return size;
}

/// The code of a letter, with those of its accents; empty where it has none.
std::string letter_code(char32_t letter) {
    std::string code;
    while (true) {
        if (letter < 0x80) return code += static_cast<char>(letter);
        if (const CifCode* const known = cif_code_of(letter)) return code.append(known->code);
        const std::optional<Accented> parts = decomposed(letter);
        if (!parts || cif_accent_of(parts->mark) == 0) return {};
        code += {'\\', cif_accent_of(parts->mark)};
        letter = parts->letter;
    }
}

/// A character that is alone, or carries marks that Unicode has no character with.
struct Unit {
    std::string code;  // empty: the characters stay, or are one of ASCII
    std::size_t size;
};

/// The one at the front of a text, which `first` begins.
Unit first_unit(std::string_view text, const Utf8Character& first) {
    if (is_ascii(text[0]) && (text.size() == 1 || is_ascii(text[1]))) return {"", 1};  // as most
    Unit unit{first.valid ? letter_code(first.code) : "", first.size};
    if (unit.code.empty() || !is_letter_of_text(first.code)) return unit;
    std::string accents;  // backwards: the outermost comes first
    char32_t single = first.code;
    while (unit.size < text.size()) {
        const Utf8Character mark = first_character(text.substr(unit.size));
        const char accent = cif_accent_of(mark.code);
        if (accent == 0 || composed(single, mark.code) != 0) break;
        accents += {accent, '\\'};
        unit.size += mark.size;
        single = 0;
    }
    if (!accents.empty()) unit.code.insert(0, std::string(accents.rbegin(), accents.rend()));
    return unit;
}

/// Whether a code that begins with a dash or a plus would be read with what stands before it.
bool would_join(std::string_view result, std::string_view code) {
    return !result.empty() && is_dash(result.back()) && is_dash(code.front()) &&
           (result.back() == '-' || code.front() == '-');
}

/// Whether a sign of ASCII would be read as the beginning of something.
bool begins_something(std::string_view text) {
    return text.front() == '\\' || ((text.front() == '&' || text.front() == '<' ||
                                     text.front() == '~' || text.front() == '^') &&
                                    may_begin_entity_or_mark(text));
}

/// Whether a letter would be read as the rest of a code that stands before it.
bool goes_on_code(std::string_view result, std::string_view text) {
    switch (text.front()) {
        case 'a':
        case 'A':
            return result.ends_with("\\%");
        case 'e':
            return result.ends_with("\\\\sim") && (text.starts_with("eq") || text == "e");
        default:
            return false;
    }
}

void append_entity(std::string& result, char32_t code) {
    if (code == '&' || code == '<') {
        result += code == '&' ? "&amp;" : "&lt;";
        return;
    }
    append_hexadecimal_reference(result, code);
}

}  // namespace

CifTextRichTextGenerator::CifTextRichTextGenerator()
    : NestingRichTextGenerator(make_handle<CifTextTagFactory>(),
                               make_handle<TextItemToUnicodeGreek>()) {}

CifTextRichTextGenerator::~CifTextRichTextGenerator() = default;

std::string CifTextRichTextGenerator::mark_up_text(const RichTextData& data) const {
    scripts_.clear();
    script_is_open_.fill(false);
    bars_ = 0;
    return NestingRichTextGenerator::mark_up_text(data);
}

void CifTextRichTextGenerator::write_text(std::string& result, std::string_view text) const {
    while (!text.empty()) {
        std::size_t plain = bars_ == 0 ? size_of_plain_front(text) : 0;
        const bool may_carry_accent = plain > 0 && plain < text.size() && !is_ascii(text[plain]);
        if (may_carry_accent) --plain;
        if (plain > 0 && !goes_on_code(result, text)) {
            result += text.substr(0, plain);
            text.remove_prefix(plain);
        } else {
            text.remove_prefix(write_character(result, text));
        }
    }
}

/// Appends the character at the front of `text`, with its marks; returns its size.
std::size_t CifTextRichTextGenerator::write_character(std::string& result,
                                                      std::string_view text) const {
    const Utf8Character first = first_character(text);
    Unit unit = first_unit(text, first);
    const std::string_view characters = text.substr(0, unit.size);
    const bool is_ascii = unit.size == 1 && first.code < 0x80;
    if (is_ascii && (begins_something(text) || would_join(result, characters))) {
        append_entity(result, first.code);
    } else if (is_ascii || unit.code.empty()) {
        if (goes_on_code(result, text)) {
            append_entity(result, first.code);
        } else {
            result += characters;
        }
    } else {
        const std::size_t size = unit.code.size();
        const CifCode* const code =
            first_cif_code(unit.code.append(text.substr(unit.size, longest_rest)));
        const bool goes_on = code && size < code->code.size();
        if (goes_on || would_join(result, unit.code)) {
            result += characters;
        } else {
            result.append(unit.code, 0, size);
            if (code && takes_blank(*code)) result += ' ';
        }
    }
    if (bars_ > 0) result += overline;
    return unit.size;
}

void CifTextRichTextGenerator::write_tag(std::string& result, const std::string& tag, Kind kind,
                                         bool opens) const {
    if (kind == Kind::overstrike) {
        bars_ = opens ? bars_ + 1 : bars_ - 1;
    } else if (kind != Kind::subscript && kind != Kind::superscript) {
        result += tag;
    } else if (opens) {
        // A second tilde would close the first.
        bool& open = script_is_open_[kind == Kind::subscript ? 0 : 1];
        const char* const nested = kind == Kind::subscript ? "sub>" : "sup>";
        scripts_.push_back({result.size(), open ? nested : tag, open ? nullptr : &open});
        result.append(open ? "<" : "").append(scripts_.back().tag);
        open = true;
    } else {
        const Script script = scripts_.back();
        scripts_.pop_back();
        if (script.is_open) *script.is_open = false;
        const std::size_t size = script.tag.size() + (script.is_open ? 0 : 1);
        if (result.size() == script.from + size) {
            result.resize(script.from);  // two tildes beside each other are no script
        } else {
            result.append(script.is_open ? "" : "</").append(script.tag);
        }
    }
}
