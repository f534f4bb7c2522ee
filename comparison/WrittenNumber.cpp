#include "comparison/WrittenNumber.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "comparison/unicode.h"
#include "markup/Utf8.h"
#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

constexpr std::string_view digits = "0123456789";
constexpr std::string_view minus = "\xE2\x88\x92";

/// The size of the letter or prime that ends at `end`, such as those of "a", "Z'" and "α"; 0 where
/// there is none.
std::size_t size_of_letter(std::string_view text, std::size_t end) {
    if (end == 0) return 0;
    const char last = text[end - 1];
    if (static_cast<unsigned char>(last) < 0x80)
        return is_ascii_letter(last) || last == '\'' ? 1 : 0;
    const std::size_t from = start_of_character(text.substr(0, end), to_position(end - 1));
    return is_letter(first_character(text.substr(from)).code) ? end - from : 0;
}

std::size_t end_of_digits(std::string_view text, std::size_t from) {
    return std::min(text.find_first_not_of(digits, from), text.size());
}

double value_of(const std::string& text) {
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc::result_out_of_range) return value;
    // Only a number with a negative exponent can be too small.
    const std::size_t exponent = text.find_first_of("eE");
    const bool is_small = exponent != std::string::npos
                              ? text[exponent + 1] == '-'
                              : text.find_first_of("123456789") > text.find('.');
    const double limit = is_small ? 0 : std::numeric_limits<double>::infinity();
    return text[0] == '-' ? -limit : limit;
}

/// Reads numbers one after the other.
class NumberScanner {
public:
    explicit NumberScanner(std::string_view text) : text_(text) {}

    std::vector<WrittenNumber> numbers() {
        std::vector<WrittenNumber> numbers;
        while (true) {
            const std::size_t digit = text_.find_first_of(digits, position_);
            if (digit == std::string_view::npos) return numbers;
            numbers.push_back(next(digit));
        }
    }

private:
    WrittenNumber next(std::size_t digit);
    /// Where the number begins whose first digit stands there: before its point and its sign.
    std::size_t begin(std::size_t digit) const;
    /// The uncertainty in parentheses where one stands at `position_`, which goes on behind it.
    double uncertainty(double last_place);
    /// An exponent likewise.
    std::string_view exponent();
    StringSlice label(std::size_t number) const;

    std::string_view text_;
    std::size_t position_ = 0;  // behind the last number
};

std::size_t NumberScanner::begin(std::size_t digit) const {
    std::size_t begin = digit;
    if (begin > position_ && text_[begin - 1] == '.') --begin;
    std::size_t sign = begin;
    if (sign > position_ && (text_[sign - 1] == '-' || text_[sign - 1] == '+')) --sign;
    if (text_.substr(position_, begin - position_).ends_with(minus)) sign = begin - minus.size();
    // Behind a word or a number it is a hyphen or a dash: "283-303".
    const bool is_sign = sign == 0 || (!is_ascii_digit(text_[sign - 1]) && text_[sign - 1] != ')' &&
                                       size_of_letter(text_, sign) == 0);
    return is_sign ? sign : begin;
}

WrittenNumber NumberScanner::next(std::size_t digit) {
    const std::size_t from = begin(digit);
    std::size_t end = end_of_digits(text_, digit);
    std::size_t decimals = 0;
    const bool has_point_before = digit > from && text_[digit - 1] == '.';
    if (has_point_before) {
        decimals = end - digit;
    } else if (end + 1 < text_.size() && text_[end] == '.' && is_ascii_digit(text_[end + 1])) {
        const std::size_t point = end;
        end = end_of_digits(text_, point + 1);
        decimals = end - point - 1;
    }
    std::string plain(text_.substr(from, end - from));
    if (plain.starts_with(minus)) plain.replace(0, minus.size(), "-");
    if (plain.starts_with('+')) plain.erase(0, 1);
    const StringSlice word = label(from);
    position_ = end;
    const std::string_view power = exponent();
    double last_place = std::pow(10.0, -static_cast<double>(decimals));
    if (!power.empty()) last_place *= value_of(std::string(1, '1').append(power));
    plain += power;
    const double uncertain = uncertainty(last_place);
    position_ += end_of_character(text_.substr(position_ - 1)) - 1;  // a bar belongs to its digit
    return {
        {to_position(from), to_position(position_)}, word, value_of(plain), uncertain, last_place};
}

std::string_view NumberScanner::exponent() {
    const std::string_view rest = text_.substr(position_);
    if (rest.size() < 2 || (rest[0] != 'e' && rest[0] != 'E')) return {};
    const std::size_t sign = rest[1] == '-' || rest[1] == '+' ? 1 : 0;
    const std::size_t end = end_of_digits(rest, 1 + sign);
    if (end == 1 + sign) return {};
    position_ += end;
    return rest.substr(0, end);
}

double NumberScanner::uncertainty(double last_place) {
    const std::string_view rest = text_.substr(position_);
    if (!rest.starts_with('(')) return 0;
    const std::size_t end = std::min(rest.find_first_not_of("0123456789.", 1), rest.size());
    if (end == rest.size() || rest[end] != ')' || end == 1) return 0;
    const std::string inside(rest.substr(1, end - 1));
    if (!is_ascii_digit(inside[0])) return 0;
    position_ += end + 1;
    // "105.2(1.2)" is in the unit of the number.
    return value_of(inside) * (inside.find('.') == std::string::npos ? last_place : 1);
}

StringSlice NumberScanner::label(std::size_t number) const {
    std::size_t end = number;
    while (end > position_ &&
           std::string_view(" :=").find(text_[end - 1]) != std::string_view::npos) {
        --end;
    }
    std::size_t from = end;
    while (from > position_) {
        const std::size_t size = size_of_letter(text_, from);
        if (size == 0 || size > from - position_) break;
        from -= size;
    }
    return {to_position(from == end ? number : from), to_position(number)};
}

}  // namespace

std::vector<WrittenNumber> numbers_of(std::string_view text) {
    return NumberScanner(text).numbers();
}
