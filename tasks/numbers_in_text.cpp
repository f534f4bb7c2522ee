#include "tasks/numbers_in_text.h"

#include <algorithm>
#include <string>

#include "entries/read_whole.h"
#include "text/Position.h"

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

std::size_t end_of_digits(std::string_view text, std::size_t from) {
    while (from < text.size() && is_digit(text[from])) ++from;
    return from;
}

/// The number that begins at a digit, or at a point with a digit behind it.
SearchedNumber number_at(std::string_view text, std::size_t from) {
    std::size_t to = end_of_digits(text, from);
    SearchedNumber number{{0, 0}, text.substr(from, to - from), {}, {}};
    if (to + 1 < text.size() && text[to] == '.' && is_digit(text[to + 1])) {
        const std::size_t end = end_of_digits(text, to + 1);
        number.decimals = text.substr(to + 1, end - to - 1);
        to = end;
    }
    if (to < text.size() && text[to] == '(') {
        const std::size_t end = end_of_digits(text, to + 1);
        if (end > to + 1 && end < text.size() && text[end] == ')') {
            number.uncertainty = text.substr(to + 1, end - to - 1);
            to = end + 1;
        }
    }
    number.place = {to_position(from), to_position(to)};
    const bool has_minus = from > 0 && text[from - 1] == '-';
    const char before = from > 1 ? text[from - 2] : ' ';
    number.is_negative = has_minus && !is_digit(before) && !is_letter(before);
    return number;
}

bool is_zeros(std::string_view digits) {
    return std::all_of(digits.begin(), digits.end(), [](char c) { return c == '0'; });
}

std::string_view without_leading_zeros(std::string_view digits) {
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

/// All digits of a number with so many decimals, of which it has as many or more; halves are
/// rounded up.
std::string rounded(const SearchedNumber& number, std::size_t decimals) {
    std::string digits("0");
    digits.append(number.whole).append(number.decimals.substr(0, decimals));
    const std::string_view rest = number.decimals.substr(decimals);
    if (!rest.empty() && rest[0] >= '5') {
        std::size_t i = digits.size();
        while (digits[--i] == '9') digits[i] = '0';
        ++digits[i];
    }
    return digits;
}

}  // namespace

double SearchedNumber::value() const {
    std::string text("0");
    text.append(whole).append(".").append(decimals).push_back('0');
    return read_whole<double>(text).value_or(0);
}

bool SearchedNumber::may_stand_for(const SearchedNumber& other) const {
    constexpr std::size_t long_enough = 3;  // for a whole number to be a rounded one
    if (is_negative && !other.is_negative) return false;
    if (!uncertainty.empty() &&
        (uncertainty != other.uncertainty || decimals.size() != other.decimals.size())) {
        return false;
    }
    const std::string_view own = decimals.substr(0, other.decimals.size());
    if (!is_zeros(decimals.substr(own.size()))) return false;
    const bool may_round = !decimals.empty() || whole.size() >= long_enough;
    if (!may_round && !is_zeros(other.decimals)) return false;
    std::string digits(whole);
    digits += own;
    return without_leading_zeros(digits) == without_leading_zeros(rounded(other, own.size()));
}

std::vector<std::string> SearchedNumber::first_digits() const {
    std::string all(whole);
    all += decimals;
    std::string less = all;  // what is rounded up to it begins with one less
    for (std::size_t i = less.size(); i-- > 0;) {
        if (less[i]-- > '0') break;
        less[i] = '9';
    }
    all.resize(whole.size() + decimals.find_last_not_of('0') + 1);
    return {std::string(without_leading_zeros(all)), std::string(without_leading_zeros(less))};
}

std::vector<SearchedNumber> numbers_in(std::string_view text) {
    std::vector<SearchedNumber> numbers;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool begins_with_point =
            text[i] == '.' && i + 1 < text.size() && is_digit(text[i + 1]);
        if (!is_digit(text[i]) && !begins_with_point) continue;
        numbers.push_back(number_at(text, i));
        i = numbers.back().place.to();
        // What follows a point again, as in 2.2.1, is no number of its own.
        while (i + 1 < text.size() && text[i] == '.' && is_digit(text[i + 1])) {
            i = end_of_digits(text, i + 1);
        }
        --i;
    }
    return numbers;
}

std::optional<SearchedNumber> whole_number(std::string_view text) {
    const std::size_t from = text.starts_with('-') ? 1 : 0;
    const std::vector<SearchedNumber> numbers = numbers_in(text);
    if (numbers.size() != 1 || numbers[0].place != StringSlice(to_position(from), length_of(text)))
        return std::nullopt;
    return numbers[0];
}
