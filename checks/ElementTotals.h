#pragma once

#include <array>
#include <cstddef>
#include <gemmi/elem.hpp>
#include <string>
#include <string_view>

#include "comparison/Formula.h"

/// How many there are of each element, and how far rounding may have brought these numbers.
struct ElementTotals {
    using Numbers = std::array<double, static_cast<std::size_t>(gemmi::El::END)>;

    Numbers total{};
    Numbers rounding{};  ///< Half of a unit in the last digits.

    void add(gemmi::El element, double number, double half_unit = 0);
    bool has(gemmi::El element) const { return total[static_cast<std::size_t>(element)] > 0; }
    double of(gemmi::El element) const { return total[static_cast<std::size_t>(element)]; }

    /// Of one formula in g/mol, deuterium as such.
    double weight() const;
    /// By how much rounding may have changed the weight.
    double weight_rounding() const;
};

/// The element whose symbol that is, with a capital in front; X where it is none.
gemmi::El element_of(std::string_view symbol);

/// Whether all counts of a formula are numbers.
bool are_known(const Formula& formula);
/// The totals of one that was read from that text, of which all counts are; what is no element
/// counts as X.
ElementTotals totals_of(const Formula& formula, std::string_view text);

/// The sum formula: carbon, hydrogen and the others by the alphabet, or all by the alphabet.
std::string sum_formula(const ElementTotals& totals);
/// A number with up to four decimals, without zeros behind.
std::string short_number(double number);
