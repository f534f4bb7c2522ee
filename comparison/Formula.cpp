#include "comparison/Formula.h"

#include <algorithm>
#include <cmath>

#include "comparison/FormulaScanner.h"

namespace {

using Count = Formula::Count;
using Moiety = Formula::Moiety;
using Token = Formula::Token;

bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }
bool is_small(char c) { return c >= 'a' && c <= 'z'; }
bool is_opening(char c) { return c == '(' || c == '[' || c == '{'; }
bool is_closing(char opening, char c) {
    return (opening == '(' && c == ')') || (opening == '[' && c == ']') ||
           (opening == '{' && c == '}');
}

/// Reads one moiety. Afterwards the scanner stands behind it.
class MoietyReader {
public:
    explicit MoietyReader(FormulaScanner& scanner) : scanner_(scanner) {}

    /// Whether there is one; an incomplete one may have been read otherwise.
    bool read(Moiety& moiety);

private:
    bool take_part(Moiety& moiety);
    void take_element(Moiety& moiety);
    bool take_closing_bracket(Moiety& moiety);

    FormulaScanner& scanner_;
    std::size_t end_ = 0;            // of the last part
    std::vector<std::size_t> open_;  // brackets, as tokens of the moiety
};

void MoietyReader::take_element(Moiety& moiety) {
    const std::size_t from = scanner_.position();
    scanner_.take_character();
    if (is_small(scanner_.next())) scanner_.take_character();
    const std::string_view symbol = scanner_.text().substr(from, scanner_.position() - from);
    const bool may_be_ion = moiety.tokens.empty() || moiety.tokens.back().kind == Token::opening;
    // The number of "Cu2+" is of the charge, that of "N H4+" is not.
    const Count count =
        may_be_ion ? scanner_.take_count_without_charge() : scanner_.take_count(false);
    moiety.tokens.push_back({Token::element, symbol, scanner_.range_from(from), count});
}

/// Whether a bracket is there that matches the last one.
bool MoietyReader::take_closing_bracket(Moiety& moiety) {
    if (open_.empty()) return false;
    const std::size_t from = moiety.tokens[open_.back()].range.from();
    if (!is_closing(scanner_.text()[from], scanner_.next())) return false;
    open_.pop_back();
    scanner_.take_character();
    const Count count = scanner_.take_count_without_charge();
    moiety.tokens.push_back({Token::closing, {}, scanner_.range_from(from), count});
    return true;
}

/// Whether a part of a moiety is there; it is taken with the blanks behind it.
bool MoietyReader::take_part(Moiety& moiety) {
    const std::size_t from = scanner_.position();
    if (is_capital(scanner_.next())) {
        take_element(moiety);
    } else if (is_opening(scanner_.next())) {
        open_.push_back(moiety.tokens.size());
        scanner_.take_character();
        moiety.tokens.push_back({Token::opening, {}, scanner_.range_from(from)});
    } else if (!open_.empty() && scanner_.next() == ',') {  // "(Tl0.64,K0.36)"
        scanner_.take_character();
    } else if (const std::optional<Count> charge = scanner_.take_charge()) {
        if (moiety.tokens.empty()) return false;
        moiety.charges.push_back(*charge);
    } else if (!take_closing_bracket(moiety)) {
        return false;
    }
    end_ = scanner_.position();
    scanner_.take_blanks();
    return true;
}

/// Drops the brackets around all of a moiety, whose count is a multiplier.
void drop_outer_brackets(Moiety& moiety) {
    std::vector<Token>& tokens = moiety.tokens;
    const bool is_enclosed = tokens.front().kind == Token::opening &&
                             tokens.back().range.from() == tokens.front().range.from();
    if (!is_enclosed || tokens.size() == 2) return;
    const Count& behind = tokens.back().count;
    if (!behind.range.empty()) {
        if (!moiety.multiplier.range.empty()) return;
        moiety.multiplier = behind;
    }
    tokens.pop_back();
    tokens.erase(tokens.begin());
}

/// Counts what is in brackets as often as these say; whether all numbers are finite.
bool add_totals(std::vector<Token>& tokens) {
    std::vector<Count> factors(1);
    for (std::size_t i = tokens.size(); i-- > 0;) {
        Token& token = tokens[i];
        if (token.kind == Token::opening) {
            factors.pop_back();
            continue;
        }
        Count product = token.count;
        product.value *= factors.back().value;
        product.is_known &= factors.back().is_known;
        if (!std::isfinite(product.value)) return false;
        if (token.kind == Token::closing) factors.push_back(product);
        token.total = product.value;
        token.total_is_known = product.is_known;
    }
    return true;
}

bool MoietyReader::read(Moiety& moiety) {
    const std::size_t from = scanner_.position();
    moiety.multiplier = scanner_.take_count(true);
    scanner_.take_blanks();
    while (!scanner_.at_end() && take_part(moiety)) continue;
    const bool has_element =
        std::any_of(moiety.tokens.begin(), moiety.tokens.end(),
                    [](const Token& token) { return token.kind == Token::element; });
    if (!has_element || !open_.empty()) return false;
    moiety.range = {to_position(from), to_position(end_)};
    drop_outer_brackets(moiety);
    const auto is_finite = [](const Count& count) { return std::isfinite(count.value); };
    return is_finite(moiety.multiplier) && add_totals(moiety.tokens) &&
           std::all_of(moiety.charges.begin(), moiety.charges.end(), is_finite);
}

}  // namespace

std::optional<Formula> read_formula(std::string_view text) {
    Formula formula;
    FormulaScanner scanner(text);
    scanner.take_blanks();
    while (!scanner.at_end()) {
        if (!MoietyReader(scanner).read(formula.moieties.emplace_back())) return std::nullopt;
        if (!scanner.at_end() && !scanner.take_separator()) return std::nullopt;
        scanner.take_blanks();
    }
    if (formula.moieties.empty()) return std::nullopt;
    return formula;
}
