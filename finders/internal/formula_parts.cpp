#include "finders/internal/formula_parts.h"

#include <algorithm>
#include <iterator>

#include "text/internal/ascii.h"

namespace formula {
namespace {

// What a number behind a dot of hydration stands before; blanks between symbols do not count.
constexpr std::string_view solvents[] = {"H2O",  "(H2O",  "D2O",    "(D2O",   "CH3OH", "MeOH",
                                         "EtOH", "THF",   "C2H5OH", "CH2Cl2", "DMF",   "CHCl3",
                                         "MeCN", "CH3CN", "thf",    "dmf",    "C6H6"};

/// Whether the character there, if there is one, is of that class.
bool is_at(std::string_view text, Position pos, bool (*is_of_class)(char)) {
    return pos < text.size() && is_of_class(text[pos]);
}

bool begins_with_solvent(std::string_view text) {
    return std::any_of(std::begin(solvents), std::end(solvents), [text](std::string_view solvent) {
        Position pos = 0;
        for (const char c : solvent) {
            if (pos > 0 && is_at(text, pos, is_blank)) ++pos;
            if (pos == text.size() || text[pos] != c) return false;
            ++pos;
        }
        return !is_at(text, pos, is_ascii_digit) && !is_at(text, pos, is_small);
    });
}

/// One past a variable such as the "x" of "2x", or `pos`; "x/2" is one too.
Position end_of_variable(std::string_view text, Position pos) {
    constexpr std::string_view variables = "nmxyz", delta = "\u03B4";
    Position end = pos;
    if (pos < text.size() && variables.find(text[pos]) != variables.npos) end = pos + 1;
    if (text.substr(pos, delta.size()) == delta) end = pos + delta.size();
    const bool goes_on = is_at(text, end, is_small) || is_at(text, end, is_ascii_digit);
    if (end == pos || (goes_on && end_of_charge(text, end) == end)) return pos;
    const bool is_divided =
        end < text.size() && text[end] == '/' && is_at(text, end + 1, is_ascii_digit);
    return is_divided ? end_of_run(text, end + 1, is_ascii_digit) : end;
}

/// Whether the number that ends at `end` stands before a unit, or before a decimal comma.
bool is_of_next_unit(std::string_view text, Position end) {
    if (end == text.size()) return false;
    const bool has_comma = text[end] == ',' && is_at(text, end + 1, is_ascii_digit);
    return has_comma || is_ascii_letter(text[end]) || is_opening(text[end]);
}

/// Whether the dot, with a digit behind, is a decimal point of the count that it stands in.
bool is_decimal_point(std::string_view text, Position dot) {
    const Position end = end_of_run(text, dot + 1, is_ascii_digit);
    if (end < text.size() && text[end] == '.' && is_at(text, end + 1, is_ascii_digit)) return false;
    if (begins_with_solvent(text.substr(end))) return false;
    const bool is_behind_bracket = dot > 0 && is_closing(text[dot - 1]);
    return !is_behind_bracket || !is_of_next_unit(text, end);  // "(C2 O4).5(H2 O)"
}

/// One past a number with or without decimals, or a fraction, that stands at `pos`, or `pos`.
Position end_of_number(std::string_view text, Position pos) {
    const Position end = end_of_run(text, pos, is_ascii_digit);
    if (!is_at(text, end + 1, is_ascii_digit)) return end;
    const bool goes_on =
        text[end] == '/' ? end > pos : text[end] == '.' && is_decimal_point(text, end);
    return goes_on ? end_of_run(text, end + 1, is_ascii_digit) : end;
}

}  // namespace

Position end_of_run(std::string_view text, Position pos, bool (*is_of_class)(char)) {
    while (is_at(text, pos, is_of_class)) ++pos;
    return pos;
}

Position end_of_sign(std::string_view text, Position pos) {
    constexpr std::string_view minus = "\u2212";
    if (pos < text.size() && (text[pos] == '+' || text[pos] == '-')) return pos + 1;
    return text.substr(pos, minus.size()) == minus ? pos + minus.size() : pos;
}

bool ends_unit(std::string_view text, Position pos) {
    constexpr std::string_view separators = ",;.)]}";
    return pos == text.size() || is_blank(text[pos]) ||
           separators.find(text[pos]) != separators.npos ||
           static_cast<unsigned char>(text[pos]) >= 0x80;
}

Position end_of_charge(std::string_view text, Position pos) {
    Position sign = end_of_run(text, pos, is_ascii_digit);
    if (sign < text.size() && (text[sign] == 'n' || text[sign] == 'm')) ++sign;
    const Position end = end_of_sign(text, sign);
    return end > sign && ends_unit(text, end) ? end : pos;
}

Position end_of_count(std::string_view text, Position pos) {
    const Position number = end_of_number(text, pos);
    const Position variable = end_of_variable(text, number);
    if (number == pos || variable > number) return variable;
    const Position sign = end_of_sign(text, number);
    const Position term = sign > number ? end_of_variable(text, sign) : sign;
    return term > sign ? term : number;
}

}  // namespace formula
