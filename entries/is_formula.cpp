#include "entries/is_formula.h"

#include <gemmi/elem.hpp>
#include <string>

namespace {

bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }
bool is_small(char c) { return c >= 'a' && c <= 'z'; }

/// Takes the symbol of an element at the front of a formula off it.
bool take_element(std::string_view& formula) {
    const bool has_two = formula.size() > 1 && is_small(formula[1]);
    const std::size_t size = has_two ? 2 : 1;
    const std::string symbol(formula.substr(0, size));
    formula.remove_prefix(size);
    return gemmi::find_element(symbol.c_str()) != gemmi::El::X;
}

}  // namespace

bool is_formula(std::string_view text) {
    constexpr std::string_view of_numbers = "0123456789.,+-*/: nmxyz\xC2\xB7";
    std::string open;
    bool has_element = false;
    while (!text.empty()) {
        const char c = text.front();
        if (is_capital(c)) {
            if (!take_element(text)) return false;
            has_element = true;
            continue;
        }
        text.remove_prefix(1);
        if (c == '(' || c == '[' || c == '{') {
            open += c == '(' ? ')' : static_cast<char>(c + 2);
        } else if (!open.empty() && c == open.back()) {
            open.pop_back();
        } else if (of_numbers.find(c) == std::string_view::npos) {
            return false;
        }
    }
    return has_element && open.empty();
}
