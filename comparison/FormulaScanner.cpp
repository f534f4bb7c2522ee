#include "comparison/FormulaScanner.h"

#include <charconv>
#include <cmath>
#include <string>

#include "text/internal/ascii.h"

namespace {

using Count = Formula::Count;

bool is_small(char c) { return c >= 'a' && c <= 'z'; }

struct Spelling {
    std::string_view text;
    double value;
};

// Unknowns become numbers that no sum of counts makes equal: so compositions can be compared.
constexpr Spelling unknowns[] = {{"n", 1.7724538509055159}, {"m", 2.6651441426902251},
                                 {"x", 1.3247179572447460}, {"y", 1.4655712318767680},
                                 {"z", 1.9331849818995204}, {"\u03B4", 0.5671432904097838}};
constexpr Spelling signs[] = {{"+", 1}, {"-", -1}, {"\u2212", -1}, {"\u2013", -1}};
constexpr Spelling separators[] = {{",", 0}, {";", 0}, {".", 0}, {"\u00B7", 0}, {"*", 0}};
constexpr Spelling blanks[] = {{" ", 0}, {"\t", 0}, {"\r", 0}, {"\n", 0}, {"\u00A0", 0}};

/// Moves the position past one of the spellings that stands there.
template <std::size_t size>
const Spelling* take(std::string_view text, std::size_t& position,
                     const Spelling (&spellings)[size]) {
    for (const Spelling& spelling : spellings) {
        if (!text.substr(position).starts_with(spelling.text)) continue;
        position += spelling.text.size();
        return &spelling;
    }
    return nullptr;
}

const Spelling* take_unknown(std::string_view text, std::size_t& position) {
    std::size_t end = position;
    const Spelling* const unknown = take(text, end, unknowns);
    if (!unknown || (end < text.size() && is_small(text[end]))) return nullptr;
    position = end;
    return unknown;
}

}  // namespace

void FormulaScanner::take_blanks() {
    while (take(text_, position_, blanks)) continue;
}

bool FormulaScanner::take_separator() { return take(text_, position_, separators); }

void FormulaScanner::take_digits() {
    while (is_ascii_digit(next())) ++position_;
}

/// Whether decimals stand there, and not a dot with what is hydrated: "CuSO4.5H2O", "(C2 O4).5(".
bool FormulaScanner::begins_fraction(bool is_in_front) const {
    const bool has_point = at(position_) == '.' || (is_in_front && at(position_) == ',');
    std::size_t end = position_ + 1;
    if (!has_point || !is_ascii_digit(at(end))) return false;
    if (is_in_front) return true;
    while (is_ascii_digit(at(end))) ++end;
    for (const std::string_view solvent : {"H2O", "H2 O", "(H2O", "(H2 O", "D2O", "D2 O"}) {
        if (text_.substr(end).starts_with(solvent)) return false;
    }
    const bool is_behind_bracket =
        position_ > 0 && std::string_view(")]}").find(text_[position_ - 1]) != std::string::npos;
    const char next = at(end);
    const bool is_count = next == ',' && is_ascii_digit(at(end + 1));
    return !is_behind_bracket || !(is_count || is_ascii_letter(next) || next == '(' || next == '[');
}

/// "2", "2.5", ".09", "1/3".
std::optional<double> FormulaScanner::take_number(bool is_in_front) {
    const auto value_of = [](std::string_view digits) {
        double value = 0;
        const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
        return result.ec == std::errc() ? value : HUGE_VAL;  // which makes it no formula
    };
    const std::size_t from = position_;
    take_digits();
    const std::size_t point = position_;
    if (begins_fraction(is_in_front)) {
        ++position_;
        take_digits();
        std::string number(text_.substr(from, position_ - from));
        number[point - from] = '.';
        return value_of(from == point ? "0" + number : number);
    }
    if (from == point) return std::nullopt;
    const double value = value_of(text_.substr(from, point - from));
    if (at(point) != '/' || !is_ascii_digit(at(point + 1))) return value;
    ++position_;
    take_digits();
    return value / value_of(text_.substr(point + 1, position_ - point - 1));
}

/// "2", "n", "2n", "x/2".
std::optional<Count> FormulaScanner::take_term(bool is_in_front) {
    const std::size_t from = position_;
    Count term;
    term.value = take_number(is_in_front).value_or(1);
    if (const Spelling* const unknown = take_unknown(text_, position_)) {
        term.value *= unknown->value;
        term.is_known = false;
        if (at(position_) == '/' && is_ascii_digit(at(position_ + 1))) {
            ++position_;
            term.value /= take_number(false).value_or(1);
        }
    }
    term.range = range_from(from);
    return term.range.empty() ? std::nullopt : std::optional(term);
}

Count FormulaScanner::take_count(bool is_in_front) {
    const std::size_t from = position_;
    std::optional<Count> count = take_term(is_in_front);
    if (!count) return {1, true, range_from(from)};
    const std::size_t behind_term = position_;
    const Spelling* const sign = take(text_, position_, signs);
    const std::optional<Count> other = sign ? take_term(false) : std::nullopt;
    if (other && !(count->is_known && other->is_known)) {
        count->value += sign->value * other->value;
        count->is_known = false;
        count->range = range_from(from);
    } else {
        position_ = behind_term;
    }
    return *count;
}

/// Whether what stands there shows that a charge is complete.
bool FormulaScanner::ends_unit() {
    const std::size_t here = position_;
    const bool ends = at_end() || take(text_, position_, separators) ||
                      take(text_, position_, blanks) ||
                      std::string_view(")]}").find(at(here)) != std::string_view::npos;
    position_ = here;
    return ends;
}

std::optional<Count> FormulaScanner::take_charge() {
    const std::size_t from = position_;
    std::optional<Count> size = take_term(false);
    const Spelling* const sign = take(text_, position_, signs);
    if (sign && !size) size = take_term(false);
    if (!sign || !ends_unit()) {
        position_ = from;
        return std::nullopt;
    }
    Count charge = size.value_or(Count{});
    charge.value *= sign->value;
    charge.range = range_from(from);
    return charge;
}

Count FormulaScanner::take_count_without_charge() {
    const std::size_t from = position_;
    const bool has_charge = take_charge().has_value();
    position_ = from;
    return has_charge ? Count{1, true, range_from(from)} : take_count(false);
}
