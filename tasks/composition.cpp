#include "tasks/composition.h"

#include <charconv>
#include <map>

#include "text/internal/ascii.h"

namespace {

/// The number that the text begins with, taken off it; 1 when there is none.
double take_number(std::string_view& text) {
    double number = 1;
    const auto result =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return number;
}

bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }
bool is_small(char c) { return c >= 'a' && c <= 'z'; }
bool is_sign(char c) { return c == '+' || c == '-'; }

}  // namespace

std::string composition_of(std::string_view formula) {
    std::map<std::string_view, double> elements;
    while (!formula.empty()) {
        const char first = formula.front();
        if (is_capital(first)) {
            std::size_t size = 1;
            while (size < formula.size() && is_small(formula[size])) ++size;
            const std::string_view element = formula.substr(0, size);
            formula.remove_prefix(size);
            elements[element] += take_number(formula);
        } else if (is_ascii_digit(first)) {  // of a charge: "2+"
            take_number(formula);
            if (formula.empty() || !is_sign(formula.front())) return {};
        } else if (is_sign(first) || first == ' ') {
            formula.remove_prefix(1);
        } else {
            return {};
        }
    }
    std::string composition;
    for (const auto& [element, count] : elements) {
        composition.append(element).append(" ").append(std::to_string(count)).append(" ");
    }
    return composition;
}
