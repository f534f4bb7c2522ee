#include "search/NumericComparison.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

#include "text/regex_grep.h"

namespace {

const Regex number_regex(
    "[+-]?          # optional sign\n"
    "(\\d*\\.\\d+   # number with digits after a decimal point -\n"
    "# and possibly some before the point\n"
    "|              # or\n"
    "\\d+\\.?)      # number with digits only before an optional decimal point\n",
    Regex::free_spacing);

constexpr unsigned int search_flags = 0x1000;  // the host's

struct NumberMatch {
    StringSlice slice;
    double value;
};

/// The value that a stream of the "C" locale reads from a number of the pattern above.
double value_of(std::string_view number) {
    const bool negative = number.front() == '-';
    if (negative || number.front() == '+') number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const bool large =
            number.substr(0, number.find('.')).find_first_not_of('0') != std::string_view::npos;
        value = large ? std::numeric_limits<double>::max() : 0;
    }
    return negative ? -value : value;
}

std::vector<NumberMatch> find_numbers(const std::string& text, RegexResults& match) {
    std::vector<NumberMatch> numbers;
    numbers.reserve(text.size() / 6 + 2);  // as many as in usual texts of numbers
    const std::string_view whole = text;
    regex_grep(
        number_regex, text, match,
        [&](const StringSlice& slice) {
            numbers.push_back({slice, value_of(whole.substr(slice.from(), slice.length()))});
        },
        search_flags);
    return numbers;
}

}  // namespace

NumericComparison::~NumericComparison() = default;

bool NumericComparison::comparison_search(const std::string& term, const std::string& text,
                                          std::vector<StringSlice>& slices) const {
    RegexResults match;
    const std::vector<NumberMatch> text_numbers = find_numbers(text, match);
    const std::vector<NumberMatch> term_numbers = find_numbers(term, match);
    // Wider than a double where the platform can: at the very bound its rounding must not decide.
    const long double tolerance = tolerance_;
    for (std::size_t i = 0; i < std::min(text_numbers.size(), term_numbers.size()); ++i) {
        const long double a = text_numbers[i].value;
        const long double b = term_numbers[i].value;
        if (b - tolerance <= a && a - tolerance <= b) slices.push_back(text_numbers[i].slice);
    }
    std::erase(slices, StringSlice(0, 0));
    return !text_numbers.empty() && slices.size() == text_numbers.size();
}
