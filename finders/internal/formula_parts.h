#pragma once

#include <cstddef>
#include <string_view>

// The parts of a chemical formula, in ASCII whatever the locale. Positions count bytes of the text.

namespace formula {

using Position = std::size_t;

constexpr bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool is_small(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
constexpr bool is_opening(char c) { return c == '(' || c == '[' || c == '{'; }
constexpr bool is_closing(char c) { return c == ')' || c == ']' || c == '}'; }

/// One past the last of the characters of that class that stand together from `pos` on.
Position end_of_run(std::string_view text, Position pos, bool (*is_of_class)(char));
/// One past the sign that stands at `pos`, or `pos`.
Position end_of_sign(std::string_view text, Position pos);
/// Whether what stands at `pos` shows that a charge before it is complete.
bool ends_unit(std::string_view text, Position pos);
/// One past a charge such as "2+", "-" or "n+" that stands at `pos` and ends its unit, or `pos`.
Position end_of_charge(std::string_view text, Position pos);
/// One past the count that stands behind a symbol or a bracket at `pos`, or `pos`: a number, a
/// variable or both, as in "0.5", "1/3", "2n" and "1-x".
Position end_of_count(std::string_view text, Position pos);

}  // namespace formula
