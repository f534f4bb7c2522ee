#include "comparison/Composition.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

bool are_equal_totals(double left, double right) {
    constexpr double rounding = 1e-9;
    return std::abs(left - right) <= rounding * std::max(std::abs(left), std::abs(right));
}

Composition::Composition(const Formula::Moiety& moiety) {
    add(moiety, {});
    merge();
}

Composition::Composition(const Formula& formula) {
    for (const Formula::Moiety& moiety : formula.moieties) add(moiety, moiety.multiplier);
    merge();
}

void Composition::add(const Formula::Moiety& moiety, const Formula::Count& multiplier) {
    std::string_view before;
    for (const Formula::Token& token : moiety.tokens) {
        if (token.kind == Formula::Token::element && token.total != 0) {
            elements.push_back({token.symbol, token.total * multiplier.value,
                                token.total_is_known && multiplier.is_known, token.range, before});
        }
        before = token.symbol;
    }
}

void Composition::merge() {
    std::stable_sort(elements.begin(), elements.end(),
                     [](const Element& a, const Element& b) { return a.symbol < b.symbol; });
    std::size_t merged = 0;
    for (const Element& element : elements) {
        if (merged > 0 && elements[merged - 1].symbol == element.symbol) {
            elements[merged - 1].total += element.total;
            elements[merged - 1].is_known &= element.is_known;
        } else {
            elements[merged++] = element;
        }
    }
    elements.erase(elements.begin() + static_cast<std::ptrdiff_t>(merged), elements.end());
}

const Composition::Element* Composition::find(std::string_view symbol) const {
    const auto found = std::lower_bound(
        elements.begin(), elements.end(), symbol,
        [](const Element& element, std::string_view wanted) { return element.symbol < wanted; });
    return found != elements.end() && found->symbol == symbol ? &*found : nullptr;
}

bool Composition::operator==(const Composition& other) const {
    return std::equal(elements.begin(), elements.end(), other.elements.begin(),
                      other.elements.end(), [](const Element& a, const Element& b) {
                          return a.symbol == b.symbol && are_equal_totals(a.total, b.total);
                      });
}

std::string Composition::key(std::string_view left_out) const {
    std::string key;
    for (const Element& element : elements) {
        if (left_out.find(element.symbol) != std::string_view::npos) continue;
        char total[32];
        std::snprintf(total, sizeof total, "%.9g ", element.total);
        key.append(element.symbol).append(total);
    }
    return key;
}

std::string Composition::symbols() const {
    std::string symbols;
    for (const Element& element : elements) symbols.append(element.symbol).append(" ");
    return symbols;
}
