#include "finders/TevoChemicalFormulaStyleFinder.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "text/internal/character_class.h"

namespace {

bool is_charge(char c) { return is_digit(c) || c == '+' || c == '-'; }

/// One past the last of the `in_run` characters that stand together from `pos` on.
unsigned int end_of_run(std::string_view text, unsigned int pos, bool (*in_run)(char)) {
    while (pos < text.size() && in_run(text[pos])) ++pos;
    return pos;
}

/// Polymers repeat what stands in parentheses: "(C2 H4)n".
bool is_repeat_mark(std::string_view text, unsigned int pos) {
    return text[pos] == 'n' && text[pos - 1] == ')';
}

/// Appends the 1 of each slice that reads exactly as one of `texts`.
void find_ones(std::string_view text, const std::vector<StringSlice>& slices,
               std::initializer_list<std::string_view> texts, std::vector<StringSlice>& out) {
    for (const StringSlice& slice : slices) {
        const std::string_view shown = text.substr(slice.from(), slice.length());
        if (std::find(texts.begin(), texts.end(), shown) == texts.end()) continue;
        out.emplace_back(slice.from(), slice.from() + 1);
    }
}

}  // namespace

TevoChemicalFormulaStyleFinder::~TevoChemicalFormulaStyleFinder() = default;

void TevoChemicalFormulaStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    const std::string_view formula = text();
    for (unsigned int pos = 1; pos < formula.size(); ++pos) {
        if (is_repeat_mark(formula, pos)) {
            out.emplace_back(pos, pos + 1);
        } else if (is_digit(formula[pos]) && is_letter(formula[pos - 1])) {
            const unsigned int end = end_of_run(formula, pos, is_digit);
            out.emplace_back(pos, end);
            pos = end;  // what ends a count begins nothing
        }
    }
}

void TevoChemicalFormulaStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    const std::string_view formula = text();
    for (unsigned int pos = 1; pos < formula.size(); ++pos) {
        if (!is_digit(formula[pos]) || !is_space(formula[pos - 1])) continue;
        const unsigned int end = end_of_run(formula, pos, is_charge);
        out.emplace_back(pos, end);
        pos = end;
    }
}

void TevoChemicalFormulaStyleFinder::invisible(std::vector<StringSlice>& out) const {
    std::vector<StringSlice> counts, charges;
    subscripts(counts);
    find_ones(text(), counts, {"1"}, out);
    superscripts(charges);
    find_ones(text(), charges, {"1+", "1-"}, out);
}
