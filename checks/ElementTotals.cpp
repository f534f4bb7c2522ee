#include "checks/ElementTotals.h"

#include <algorithm>
#include <charconv>
#include <string>

namespace {

using gemmi::El;

/// Half of a unit in the last digit that a count is written with; 0 for whole numbers, which are
/// exact, and for fractions.
double half_unit(std::string_view text, const StringSlice& range) {
    const std::string_view count = text.substr(range.from(), range.length());
    const std::size_t point = count.find('.');
    if (point == std::string_view::npos) return 0;
    double unit = 0.5;
    for (std::size_t i = point + 1; i < count.size(); ++i) unit /= 10;
    return unit;
}

/// All elements but carbon and hydrogen by the alphabet of their symbols.
constexpr std::size_t elements = static_cast<std::size_t>(El::END);
using Order = std::array<El, elements>;

const Order& alphabetical_order() {
    static const Order order = [] {
        Order all{};
        for (std::size_t i = 0; i < elements; ++i) all[i] = static_cast<El>(i);
        std::sort(all.begin(), all.end(), [](El a, El b) {
            return std::string_view(gemmi::element_name(a)) < gemmi::element_name(b);
        });
        return all;
    }();
    return order;
}

void append(El element, const ElementTotals& totals, std::string& result) {
    if (!totals.has(element)) return;
    if (!result.empty()) result += ' ';
    result += gemmi::element_name(element);
    const std::string number = short_number(totals.of(element));
    if (number != "1") result += number;
}

}  // namespace

void ElementTotals::add(El element, double number, double half_unit) {
    total[static_cast<std::size_t>(element)] += number;
    rounding[static_cast<std::size_t>(element)] += half_unit;
}

double ElementTotals::weight() const {
    double sum = 0;
    for (std::size_t i = 0; i < total.size(); ++i) {
        if (total[i] > 0) sum += total[i] * gemmi::molecular_weight(static_cast<El>(i));
    }
    return sum;
}

double ElementTotals::weight_rounding() const {
    double sum = 0;
    for (std::size_t i = 0; i < rounding.size(); ++i) {
        if (rounding[i] > 0) sum += rounding[i] * gemmi::molecular_weight(static_cast<El>(i));
    }
    return sum;
}

El element_of(std::string_view symbol) {
    constexpr std::size_t longest = 2;
    if (symbol.empty() || symbol.size() > longest) return El::X;
    const char text[] = {symbol[0], symbol.size() == longest ? symbol[1] : '\0', '\0'};
    return gemmi::find_element(text);
}

ElementTotals totals_of(const Formula& formula, std::string_view text) {
    ElementTotals totals;
    for (const Formula::Moiety& moiety : formula.moieties) {
        const double multiplier = moiety.multiplier.value;
        const double multiplier_unit = half_unit(text, moiety.multiplier.range);
        for (const Formula::Token& token : moiety.tokens) {
            if (token.kind != Formula::Token::element) continue;
            const double unit = half_unit(text, token.count.range);
            totals.add(element_of(token.symbol), token.total * multiplier,
                       unit * multiplier + multiplier_unit * token.total);
        }
    }
    return totals;
}

bool are_known(const Formula& formula) {
    return std::all_of(formula.moieties.begin(), formula.moieties.end(), [](const auto& moiety) {
        return moiety.multiplier.is_known &&
               std::all_of(moiety.tokens.begin(), moiety.tokens.end(),
                           [](const Formula::Token& token) { return token.total_is_known; });
    });
}

std::string sum_formula(const ElementTotals& totals) {
    std::string result;
    const bool has_carbon = totals.has(El::C);
    for (const El first : {El::C, El::H, El::D}) {
        if (has_carbon) append(first, totals, result);
    }
    for (const El element : alphabetical_order()) {
        const bool is_first = element == El::C || element == El::H || element == El::D;
        if (!has_carbon || !is_first) append(element, totals, result);
    }
    return result;
}

std::string short_number(double number) {
    constexpr int decimals = 4;
    std::array<char, 400> text{};  // for the largest number
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   std::chars_format::fixed, decimals);
    std::string result(text.data(), end.ptr);
    result.erase(result.find_last_not_of('0') + 1);
    if (!result.empty() && result.back() == '.') result.pop_back();
    return result;
}
