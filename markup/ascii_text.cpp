#include "markup/ascii_text.h"

#include <algorithm>
#include <iterator>

#include "markup/GreekLetter.h"
#include "markup/Utf8.h"
#include "markup/internal/cif_codes.h"
#include "markup/internal/compositions.h"
#include "markup/internal/controls.h"
#include "markup/internal/script_forms.h"

namespace {

/// Characters that are written alike.
struct Fold {
    std::u16string_view characters;
    std::string_view ascii;
};

constexpr Fold folds[] = {
    {u"‐‑‒–—―−", "-"},
    {u"×", "x"},
    {u"·•⋅", "."},
    {u"′‘’ʹ", "'"},
    {u"″“”", "\""},
    {u"åāă", "a"},
    {u"ÅÅ", "A"},
    {u"ø", "o"},
    {u"Ø", "O"},
    {u"ł", "l"},
    {u"Ł", "L"},
    {u"đð", "d"},
    {u"ĐÐ", "D"},
    {u"ħ", "h"},
    {u"Ħ", "H"},
    {u"ŧ", "t"},
    {u"Ŧ", "T"},
    {u"ŋ", "ng"},
    {u"Ŋ", "NG"},
    {u"ı", "i"},
    {u"ß", "ss"},
    {u"ẞ", "SS"},
    {u"æ", "ae"},
    {u"Æ", "AE"},
    {u"œ", "oe"},
    {u"Œ", "OE"},
    {u"þ", "th"},
    {u"Þ", "Th"},
    {u"ů", "u"},
    {u"Ů", "U"},
    {u"µ", "mu"},
    {u"…", "..."},
    {u"±", "+-"},
    {u"∓", "-+"},
    {u"°", " deg"},
    {u"→", "->"},
    {u"←", "<-"},
    {u"≤", "<="},
    {u"≥", ">="},
    {u"∼", "~"},
    {u"∞", "infinity"},
    {u"⟨", "<"},
    {u"⟩", ">"},
    {u"\u00A0\u2002\u2003\u2009\u200A\u202F", " "},
    {u"\u00AD\u200B\u200C\u200D\uFEFF", ""},
};

bool is_mark(char32_t code) { return code >= 0x300 && code < 0x370; }

/// A Greek letter's name; capitals that are no symbols of ours as the small ones, but for the case.
std::string greek_name(char32_t letter) {
    constexpr char32_t capital_alpha = U'Α', capital_omega = U'Ω', to_small = U'α' - U'Α';
    const bool is_capital = letter >= capital_alpha && letter <= capital_omega;
    const TextItem::GreekSymbol symbol = greek_symbol(is_capital ? letter + to_small : letter);
    if (symbol == TextItem::no_symbol) return {};
    std::string name = greek_text(symbol, &GreekLetter::tevo, "");
    if (is_capital) name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return name;
}

void append_folded(std::string& result, char32_t code) {
    while (const auto parts = decomposed(code)) code = parts->letter;
    const ScriptCharacter form = script_character(code);
    if (form.base != 0) code = form.base;
    const auto* const fold =
        std::find_if(std::begin(folds), std::end(folds), [code](const Fold& f) {
            return code < 0x10000 &&
                   f.characters.find(static_cast<char16_t>(code)) != f.characters.npos;
        });
    if (code < 0x80) {
        result += static_cast<char>(code);
    } else if (fold != std::end(folds)) {
        result += fold->ascii;
    } else if (!is_mark(code)) {
        const std::string name = greek_name(code);
        result += name.empty() ? "?" : name;
    }
}

/// Appends each character beyond ASCII by `append`.
template <class Append>
std::string in_ascii(std::string_view text, Append append) {
    std::string result;
    result.reserve(text.size());
    while (true) {
        const std::string_view beyond = first_beyond_ascii(text);
        const std::size_t plain =
            beyond.empty() ? text.size() : static_cast<std::size_t>(beyond.data() - text.data());
        result += text.substr(0, plain);
        if (beyond.empty()) return result;
        append(result, first_character(beyond).code);
        text.remove_prefix(plain + beyond.size());
    }
}

}  // namespace

std::string folded_to_ascii(std::string_view text) { return in_ascii(text, append_folded); }

std::string with_references(std::string_view text) {
    return in_ascii(text, append_hexadecimal_reference);
}

std::string_view first_beyond_ascii(std::string_view text) {
    const auto is_beyond = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    const auto place = std::find_if(text.begin(), text.end(), is_beyond);
    if (place == text.end()) return {};
    text.remove_prefix(static_cast<std::size_t>(place - text.begin()));
    return text.substr(0, first_character(text).size);
}
