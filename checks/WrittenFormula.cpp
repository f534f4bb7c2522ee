#include "checks/WrittenFormula.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "text/internal/ascii.h"

namespace {

using gemmi::El;
using Moiety = Formula::Moiety;
using Token = Formula::Token;

bool is_small(char c) { return c >= 'a' && c <= 'z'; }
char capital_of(char c) { return is_small(c) ? static_cast<char>(c - 'a' + 'A') : c; }
char small_of(char c) { return static_cast<char>(c | 0x20); }
bool is_element(std::string_view symbol) { return element_of(symbol) != El::X; }

/// The symbol that can only be meant by letters of the wrong case; nothing where they are right, or
/// may be two elements' or none's.
std::optional<std::string> in_right_case(std::string_view letters) {
    constexpr std::string_view unknowns = "mnxyz";
    if (letters.size() == 1) {
        const bool is_count = unknowns.find(letters[0]) != std::string_view::npos;
        const std::string symbol(1, capital_of(letters[0]));
        return is_small(letters[0]) && !is_count && is_element(symbol) ? std::optional(symbol)
                                                                       : std::nullopt;
    }
    if (letters.size() != 2 || (!is_small(letters[0]) && is_small(letters[1]))) {
        return std::nullopt;
    }
    const bool may_be_two = is_element(letters.substr(0, 1)) && is_element(letters.substr(1, 1));
    const std::string symbol = {capital_of(letters[0]), small_of(letters[1])};
    return !may_be_two && is_element(symbol) ? std::optional(symbol) : std::nullopt;
}

/// Whether a symbol follows what stands before it without a blank or a sign between.
bool is_joined(std::string_view text, std::size_t place) {
    const char before = place > 0 ? text[place - 1] : ' ';
    return is_ascii_letter(before) || is_ascii_digit(before) || before == ')' || before == ']';
}

/// Carbon and hydrogen first, where carbon is there.
bool stands_before(const Token& a, const Token& b, bool has_carbon) {
    const auto rank = [has_carbon](std::string_view symbol) {
        if (!has_carbon) return 2;
        return symbol == "C" ? 0 : symbol == "H" || symbol == "D" ? 1 : 2;
    };
    const int a_rank = rank(a.symbol), b_rank = rank(b.symbol);
    return a_rank != b_rank ? a_rank < b_rank : a.symbol < b.symbol;
}

bool has_carbon(const Moiety& moiety) {
    return std::any_of(moiety.tokens.begin(), moiety.tokens.end(),
                       [](const Token& token) { return token.symbol == "C"; });
}

}  // namespace

WrittenFormula::WrittenFormula(std::string text) : text_(std::move(text)) {
    for (std::size_t pos = 0; pos < text_.size(); ++pos) {
        const std::size_t from = pos;
        while (pos < text_.size() && is_ascii_letter(text_[pos])) ++pos;
        const auto symbol = in_right_case(std::string_view(text_).substr(from, pos - from));
        if (!symbol) continue;
        text_.replace(from, symbol->size(), *symbol);
        has_wrong_case_ = true;
    }
    formula_ = read_formula(text_);
}

std::string_view WrittenFormula::unknown_symbol() const {
    for (const Moiety& moiety : formula_->moieties) {
        for (const Token& token : moiety.tokens) {
            if (token.kind == Token::element && !is_element(token.symbol)) return token.symbol;
        }
    }
    return {};
}

bool WrittenFormula::lacks_blanks() const {
    for (const Moiety& moiety : formula_->moieties) {
        for (std::size_t i = 1; i < moiety.tokens.size(); ++i) {
            const Token& token = moiety.tokens[i];
            if (token.kind == Token::element && is_joined(text_, token.range.from())) return true;
        }
    }
    return false;
}

bool WrittenFormula::is_ambiguous() const {
    constexpr El last = El::Pu;  // the next ones are not met with
    const auto is_letter = [](const Token& token) {
        return token.kind == Token::element && token.symbol.size() == 1;
    };
    for (const Moiety& moiety : formula_->moieties) {
        for (std::size_t i = 1; i < moiety.tokens.size(); ++i) {
            const Token &a = moiety.tokens[i - 1], &b = moiety.tokens[i];
            if (!is_letter(a) || !is_letter(b) || a.range.length() > 1) continue;
            if (a.range.to() != b.range.from()) continue;
            const El both = element_of(std::string{a.symbol[0], small_of(b.symbol[0])});
            if (both != El::X && both <= last) return true;
        }
    }
    return false;
}

bool WrittenFormula::is_sum() const {
    const Moiety& moiety = formula_->moieties.front();
    if (formula_->moieties.size() > 1 || !moiety.multiplier.range.empty()) return false;
    std::vector<std::string_view> symbols;
    symbols.reserve(moiety.tokens.size());
    for (const Token& token : moiety.tokens) {
        if (token.kind != Token::element) return false;
        symbols.push_back(token.symbol);
    }
    std::sort(symbols.begin(), symbols.end());
    return std::adjacent_find(symbols.begin(), symbols.end()) == symbols.end();
}

bool WrittenFormula::is_in_order() const {
    const Moiety& moiety = formula_->moieties.front();
    const bool carbon = has_carbon(moiety);
    const auto is_before = [carbon](const Token& a, const Token& b) {
        return stands_before(a, b, carbon);
    };
    std::vector<Token> tokens = moiety.tokens;
    if (std::is_sorted(tokens.begin(), tokens.end(), is_before)) return true;
    // Deuterium may also stand before hydrogen or where the alphabet has it.
    const auto end = std::remove_if(tokens.begin(), tokens.end(),
                                    [](const Token& token) { return token.symbol == "D"; });
    return end != tokens.end() && std::is_sorted(tokens.begin(), end, is_before);
}

bool WrittenFormula::has_charges() const {
    return std::any_of(formula_->moieties.begin(), formula_->moieties.end(),
                       [](const Moiety& moiety) { return !moiety.charges.empty(); });
}

bool WrittenFormula::can_be_counted() const {
    return is_formula() && are_known(*formula_) && unknown_symbol().empty();
}

std::optional<ElementTotals> WrittenFormula::totals_of_unit() const {
    if (!is_formula() || formula_->moieties.size() > 1 || !unknown_symbol().empty()) {
        return std::nullopt;
    }
    Formula unit = *formula_;
    Formula::Count& number = unit.moieties.front().multiplier;
    if (number.is_known) return std::nullopt;
    number = {};
    return are_known(unit) ? std::optional(totals_of(unit, text_)) : std::nullopt;
}

std::string WrittenFormula::with_blanks() const {
    std::string result;
    std::size_t end = 0;  // of what has been copied
    for (const Moiety& moiety : formula_->moieties) {
        for (std::size_t i = 1; i < moiety.tokens.size(); ++i) {
            const Token& token = moiety.tokens[i];
            const std::size_t from = token.range.from();
            if (token.kind != Token::element || !is_joined(text_, from)) continue;
            result.append(text_, end, from - end).append(" ");
            end = from;
        }
    }
    return result.append(text_, end);
}

std::optional<std::string> WrittenFormula::as_sum() const {
    if (!can_be_counted() || has_charges()) return std::nullopt;
    if (!is_sum()) {
        const ElementTotals all = totals();
        constexpr double unit = 1e-4, rounding = 1e-9;
        const bool is_exact = std::all_of(all.total.begin(), all.total.end(), [](double total) {
            return std::abs(std::round(total / unit) * unit - total) < rounding;
        });
        return is_exact ? std::optional(sum_formula(all)) : std::nullopt;
    }
    std::vector<Token> tokens = formula_->moieties.front().tokens;
    if (!is_in_order()) {
        const bool carbon = has_carbon(formula_->moieties.front());
        std::sort(tokens.begin(), tokens.end(),
                  [carbon](const Token& a, const Token& b) { return stands_before(a, b, carbon); });
    }
    std::string result;
    for (const Token& token : tokens) {
        if (!result.empty()) result += ' ';
        result.append(text_, token.range.from(), token.range.length());
    }
    return result;
}
