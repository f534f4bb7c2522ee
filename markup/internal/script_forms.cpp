#include "markup/internal/script_forms.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

// As Unicode's compatibility decompositions have them, ascending; the hyphen shares the forms of
// the minus sign. Those of C, F, Q and q are so young that fonts lack them.
constexpr ScriptForms script_forms[] = {
    {U'(', U'⁽', U'₍'}, {U')', U'⁾', U'₎'}, {U'+', U'⁺', U'₊'}, {U'-', U'⁻', U'₋'},
    {U'0', U'⁰', U'₀'}, {U'1', U'¹', U'₁'}, {U'2', U'²', U'₂'}, {U'3', U'³', U'₃'},
    {U'4', U'⁴', U'₄'}, {U'5', U'⁵', U'₅'}, {U'6', U'⁶', U'₆'}, {U'7', U'⁷', U'₇'},
    {U'8', U'⁸', U'₈'}, {U'9', U'⁹', U'₉'}, {U'=', U'⁼', U'₌'}, {U'A', U'ᴬ', 0},
    {U'B', U'ᴮ', 0},    {U'D', U'ᴰ', 0},    {U'E', U'ᴱ', 0},    {U'G', U'ᴳ', 0},
    {U'H', U'ᴴ', 0},    {U'I', U'ᴵ', 0},    {U'J', U'ᴶ', 0},    {U'K', U'ᴷ', 0},
    {U'L', U'ᴸ', 0},    {U'M', U'ᴹ', 0},    {U'N', U'ᴺ', 0},    {U'O', U'ᴼ', 0},
    {U'P', U'ᴾ', 0},    {U'R', U'ᴿ', 0},    {U'T', U'ᵀ', 0},    {U'U', U'ᵁ', 0},
    {U'V', U'ⱽ', 0},    {U'W', U'ᵂ', 0},    {U'a', U'ᵃ', U'ₐ'}, {U'b', U'ᵇ', 0},
    {U'c', U'ᶜ', 0},    {U'd', U'ᵈ', 0},    {U'e', U'ᵉ', U'ₑ'}, {U'f', U'ᶠ', 0},
    {U'g', U'ᵍ', 0},    {U'h', U'ʰ', U'ₕ'}, {U'i', U'ⁱ', U'ᵢ'}, {U'j', U'ʲ', U'ⱼ'},
    {U'k', U'ᵏ', U'ₖ'}, {U'l', U'ˡ', U'ₗ'}, {U'm', U'ᵐ', U'ₘ'}, {U'n', U'ⁿ', U'ₙ'},
    {U'o', U'ᵒ', U'ₒ'}, {U'p', U'ᵖ', U'ₚ'}, {U'r', U'ʳ', U'ᵣ'}, {U's', U'ˢ', U'ₛ'},
    {U't', U'ᵗ', U'ₜ'}, {U'u', U'ᵘ', U'ᵤ'}, {U'v', U'ᵛ', U'ᵥ'}, {U'w', U'ʷ', 0},
    {U'x', U'ˣ', U'ₓ'}, {U'y', U'ʸ', 0},    {U'z', U'ᶻ', 0},    {U'β', U'ᵝ', U'ᵦ'},
    {U'γ', U'ᵞ', U'ᵧ'}, {U'δ', U'ᵟ', 0},    {U'θ', U'ᶿ', 0},    {U'ρ', 0, U'ᵨ'},
    {U'φ', U'ᵠ', U'ᵩ'}, {U'χ', U'ᵡ', U'ᵪ'}, {U'−', U'⁻', U'₋'}};

constexpr bool is_ascending() {
    return std::is_sorted(
        std::begin(script_forms), std::end(script_forms),
        [](const ScriptForms& a, const ScriptForms& b) { return a.base < b.base; });
}
static_assert(is_ascending());

/// The rows of the characters of ASCII, each number one more; 0: it has no forms.
constexpr auto rows_of_ascii = [] {
    std::array<unsigned char, 0x80> rows{};
    for (std::size_t i = 0; i < std::size(script_forms); ++i) {
        const char32_t base = script_forms[i].base;
        if (base < rows.size()) rows[base] = static_cast<unsigned char>(i + 1);
    }
    return rows;
}();

struct Form {
    char32_t form;
    ScriptCharacter character;
};

/// The other way, in the order of the forms. Of two with one form the first counts.
constexpr auto forms = [] {
    std::array<Form, 2 * std::size(script_forms)> rows{};
    Form* next = rows.data();
    for (const ScriptForms& row : script_forms) {
        *next++ = {row.superscript, {row.base, 1}};
        *next++ = {row.subscript, {row.base, -1}};
    }
    std::sort(rows.begin(), rows.end(), [](const Form& a, const Form& b) {
        return a.form != b.form ? a.form < b.form : a.character.base < b.character.base;
    });
    return rows;
}();

/// For the pages of 64 characters whether there are forms in them; behind these are none.
constexpr auto has_forms = [] {
    std::array<bool, forms.back().form / 64 + 1> pages{};
    for (const Form& row : forms) {
        if (row.form != 0) pages[row.form / 64] = true;
    }
    return pages;
}();

}  // namespace

const ScriptForms* script_forms_of(char32_t base) {
    if (base < rows_of_ascii.size()) {
        const std::size_t number = rows_of_ascii[base];
        return number > 0 ? &script_forms[number - 1] : nullptr;
    }
    const auto* const row = std::lower_bound(
        std::begin(script_forms), std::end(script_forms), base,
        [](const ScriptForms& forms_of_one, char32_t code) { return forms_of_one.base < code; });
    return row != std::end(script_forms) && row->base == base ? row : nullptr;
}

ScriptCharacter script_character(char32_t form) {
    if (form / 64 >= has_forms.size() || !has_forms[form / 64]) return {0, 0};  // as most are
    const auto* const row = std::lower_bound(
        forms.begin(), forms.end(), form,
        [](const Form& candidate, char32_t code) { return candidate.form < code; });
    return row != forms.end() && row->form == form ? row->character : ScriptCharacter{0, 0};
}
