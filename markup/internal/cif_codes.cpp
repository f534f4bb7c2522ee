#include "markup/internal/cif_codes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>

namespace {

// clang-format off
constexpr CifCode codes[] = {
    {"\\a", U'α'}, {"\\A", U'Α'}, {"\\b", U'β'}, {"\\B", U'Β'}, {"\\c", U'χ'}, {"\\C", U'Χ'},
    {"\\d", U'δ'}, {"\\D", U'Δ'}, {"\\e", U'ε'}, {"\\E", U'Ε'}, {"\\f", U'φ'}, {"\\F", U'Φ'},
    {"\\g", U'γ'}, {"\\G", U'Γ'}, {"\\h", U'η'}, {"\\H", U'Η'}, {"\\i", U'ι'}, {"\\I", U'Ι'},
    {"\\k", U'κ'}, {"\\K", U'Κ'}, {"\\l", U'λ'}, {"\\L", U'Λ'}, {"\\m", U'μ'}, {"\\M", U'Μ'},
    {"\\n", U'ν'}, {"\\N", U'Ν'}, {"\\o", U'ο'}, {"\\O", U'Ο'}, {"\\p", U'π'}, {"\\P", U'Π'},
    {"\\q", U'θ'}, {"\\Q", U'Θ'}, {"\\r", U'ρ'}, {"\\R", U'Ρ'}, {"\\s", U'σ'}, {"\\S", U'Σ'},
    {"\\t", U'τ'}, {"\\T", U'Τ'}, {"\\u", U'υ'}, {"\\U", U'Υ'}, {"\\w", U'ω'}, {"\\W", U'Ω'},
    {"\\x", U'ξ'}, {"\\X", U'Ξ'}, {"\\y", U'ψ'}, {"\\Y", U'Ψ'}, {"\\z", U'ζ'}, {"\\Z", U'Ζ'},
    {"\\%a", U'å'}, {"\\%A", U'Å'}, {"\\/o", U'ø'}, {"\\/O", U'Ø'}, {"\\/l", U'ł'},
    {"\\/L", U'Ł'}, {"\\/d", U'đ'}, {"\\/D", U'Đ'}, {"\\?i", U'ı'}, {"\\&s", U'ß'},
    {"\\&S", U'ẞ'}, {"\\%", U'°'},
    {"--", U'–'}, {"---", U'—'}, {"+-", U'±'}, {"-+", U'∓'},
    {"\\\\times", U'×'}, {"\\\\neq", U'≠'}, {"\\\\sim", U'∼'}, {"\\\\simeq", U'≃'},
    {"\\\\infty", U'∞'}, {"\\\\square", U'□'}, {"\\\\rangle", U'⟩'}, {"\\\\langle", U'⟨'},
    {"\\\\rightarrow", U'→'}, {"\\\\leftarrow", U'←'},
    // No standard says which character a delocalised bond is.
    {"\\\\db", U'='}, {"\\\\tb", U'≡'}, {"\\\\ddb", U'⎓'},
};

struct Accent {
    char sign;
    char32_t mark;
};

constexpr Accent accents[] = {
    {'\'', 0x301}, {'"', 0x308}, {'=', 0x304}, {'`', 0x300}, {'~', 0x303}, {'.', 0x307},
    {'^', 0x302}, {';', 0x328}, {'<', 0x30C}, {',', 0x327}, {'>', 0x30B}, {'(', 0x306},
};

using Kind = CifMark::Kind;

constexpr CifMark cif_marks[] = {
    {"~", Kind::tilde, true, true}, {"^", Kind::caret, true, true},
    {"<i>", Kind::italic, true, false}, {"</i>", Kind::italic, false, true},
    {"<b>", Kind::bold, true, false}, {"</b>", Kind::bold, false, true},
    {"<sub>", Kind::subscript, true, false}, {"</sub>", Kind::subscript, false, true},
    {"<sup>", Kind::superscript, true, false}, {"</sup>", Kind::superscript, false, true},
};

struct NamedEntity {
    std::string_view name;
    char32_t character;
};

constexpr NamedEntity entities[] = {
    {"lt", U'<'}, {"gt", U'>'}, {"amp", U'&'}, {"quot", U'"'}, {"apos", U'\''},
    {"nbsp", U'\u00A0'}, {"deg", U'°'}, {"plusmn", U'±'}, {"times", U'×'}, {"micro", U'µ'},
    {"middot", U'·'}, {"ndash", U'–'}, {"mdash", U'—'}, {"minus", U'−'}, {"prime", U'′'},
    {"Prime", U'″'}, {"sup2", U'²'}, {"sup3", U'³'},
};
// clang-format on

/// The names of the Greek letters in the order of their characters; "" where there is a gap.
constexpr std::string_view greek_names[] = {
    "alpha", "beta",   "gamma",   "delta", "epsilon", "zeta",    "eta",  "theta", "iota",
    "kappa", "lambda", "mu",      "nu",    "xi",      "omicron", "pi",   "rho",   "sigmaf",
    "sigma", "tau",    "upsilon", "phi",   "chi",     "psi",     "omega"};

/// The codes in an order in which a look-up is quick: by the character.
constexpr auto codes_by_character = [] {
    std::array<CifCode, std::size(codes)> rows{};
    std::copy(std::begin(codes), std::end(codes), rows.begin());
    std::sort(rows.begin(), rows.end(),
              [](const CifCode& a, const CifCode& b) { return a.character < b.character; });
    return rows;
}();

/// The rows of these by the characters that most are, each number one more; 0: none has a code.
constexpr auto rows_of_letters = [] {
    std::array<unsigned char, 0x400> rows{};
    for (std::size_t i = codes_by_character.size(); i-- > 0;) {
        const char32_t character = codes_by_character[i].character;
        if (character < rows.size()) rows[character] = static_cast<unsigned char>(i + 1);
    }
    return rows;
}();

/// Codes by their second character, those with the same one from the longest to the shortest, so
/// that of few the first that fits is it.
struct CodesBySecond {
    std::array<CifCode, std::size(codes)> rows{};
    std::array<unsigned char, 129> begins{};  // for each character of ASCII, and behind the last
};

constexpr CodesBySecond codes_by_second = [] {
    CodesBySecond result;
    std::copy(std::begin(codes), std::end(codes), result.rows.begin());
    std::sort(result.rows.begin(), result.rows.end(), [](const CifCode& a, const CifCode& b) {
        const int order = a.code[1] - b.code[1];
        return order != 0 ? order < 0 : a.code.size() > b.code.size();
    });
    for (const CifCode& row : result.rows) {
        for (auto i = static_cast<std::size_t>(row.code[1]) + 1; i < result.begins.size(); ++i) {
            ++result.begins[i];
        }
    }
    return result;
}();

/// As starts_with(), for what mostly differs in its first characters.
bool begins_with(std::string_view text, std::string_view code) {
    if (text.size() < code.size()) return false;
    std::size_t i = 0;
    while (i < code.size() && text[i] == code[i]) ++i;
    return i == code.size();
}

constexpr std::size_t longest_entity = 12;

char32_t greek_character(std::string_view name) {
    constexpr char32_t small_alpha = U'α', capital_alpha = U'Α', capital_by = 'a' - 'A';
    for (std::size_t i = 0; i < std::size(greek_names); ++i) {
        const std::string_view known = greek_names[i];
        if (known.substr(1) != name.substr(1)) continue;
        if (known[0] == name[0]) return small_alpha + static_cast<char32_t>(i);
        const bool capital = static_cast<char32_t>(known[0] - name[0]) == capital_by;
        if (capital && known != "sigmaf") return capital_alpha + static_cast<char32_t>(i);
    }
    return 0;
}

char32_t numbered_character(std::string_view number) {
    const bool hexadecimal = !number.empty() && (number[0] == 'x' || number[0] == 'X');
    if (hexadecimal) number.remove_prefix(1);
    unsigned long code = 0;
    const char* const end = number.data() + number.size();
    const auto result = std::from_chars(number.data(), end, code, hexadecimal ? 16 : 10);
    const bool is_surrogate = code >= 0xD800 && code < 0xE000;
    const bool is_control = code < 0x20 || (code >= 0x7F && code < 0xA0);
    const bool is_character = result.ec == std::errc() && result.ptr == end && code <= 0x10FFFF &&
                              !is_surrogate && !is_control;
    return is_character ? static_cast<char32_t>(code) : 0;
}

constexpr bool is_name_character(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

constexpr bool is_in_entity(char c) { return is_name_character(c) || c == '#'; }

}  // namespace

const CifCode* first_cif_code(std::string_view text) {
    if (text.size() < 2) return nullptr;
    const auto second = static_cast<unsigned char>(text[1]);
    if (second >= 0x80) return nullptr;
    for (std::size_t i = codes_by_second.begins[second]; i < codes_by_second.begins[second + 1U];
         ++i) {
        const CifCode& code = codes_by_second.rows[i];
        if (begins_with(text, code.code)) return &code;
    }
    return nullptr;
}

const CifCode* cif_code_of(char32_t character) {
    if (character < rows_of_letters.size()) {
        const std::size_t number = rows_of_letters[character];
        return number > 0 ? &codes_by_character[number - 1] : nullptr;
    }
    const auto* const row =
        std::lower_bound(codes_by_character.begin(), codes_by_character.end(), character,
                         [](const CifCode& code, char32_t c) { return code.character < c; });
    return row != codes_by_character.end() && row->character == character ? row : nullptr;
}

bool takes_blank(const CifCode& code) { return code.code.ends_with('b') && code.code.size() > 2; }

char32_t first_cif_accent(std::string_view text) {
    if (text.size() < cif_accent_size || text[0] != '\\') return 0;
    for (const Accent& accent : accents) {
        if (accent.sign == text[1]) return accent.mark;
    }
    return 0;
}

char cif_accent_of(char32_t mark) {
    for (const Accent& accent : accents) {
        if (accent.mark == mark) return accent.sign;
    }
    return 0;
}

CifEntity first_cif_entity(std::string_view text) {
    if (!text.starts_with('&')) return {0, 0};
    std::string_view name = text.substr(1, longest_entity);
    const std::size_t end = name.find(';');
    if (end == std::string_view::npos || end == 0) return {0, 0};
    name = name.substr(0, end);
    const CifEntity unknown{end + 2, 0};
    const std::string_view letters = name.substr(name[0] == '#' ? 1 : 0);
    if (letters.empty() || !std::all_of(letters.begin(), letters.end(), is_name_character)) {
        return {0, 0};
    }
    if (name[0] == '#') return {unknown.size, numbered_character(letters)};
    const auto* const known =
        std::find_if(std::begin(entities), std::end(entities),
                     [name](const NamedEntity& entity) { return entity.name == name; });
    if (known != std::end(entities)) return {unknown.size, known->character};
    return {unknown.size, greek_character(name)};
}

const CifMark* first_cif_mark(std::string_view text) {
    const auto* const mark =
        std::find_if(std::begin(cif_marks), std::end(cif_marks),
                     [text](const CifMark& known) { return begins_with(text, known.text); });
    return mark == std::end(cif_marks) ? nullptr : mark;
}

bool may_begin_entity_or_mark(std::string_view text) {
    if (text.front() == '&') {
        const auto rest = text.substr(1, longest_entity);
        const auto end = std::find_if_not(rest.begin(), rest.end(), is_in_entity);
        return end == rest.end() ? rest.size() < longest_entity : first_cif_entity(text).size > 0;
    }
    return std::any_of(std::begin(cif_marks), std::end(cif_marks), [text](const CifMark& mark) {
        return mark.text.starts_with(text) || text.starts_with(mark.text);
    });
}
