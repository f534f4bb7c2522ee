#pragma once

#include <optional>
#include <string>

#include "checks/ElementTotals.h"
#include "comparison/Formula.h"

/// A formula as a file has it, and as the convention wants it: symbols with one capital in front,
/// their counts behind them, blanks between them.
class WrittenFormula {
public:
    /// Keeps a copy of the text.
    explicit WrittenFormula(std::string text);
    WrittenFormula(const WrittenFormula&) = delete;
    WrittenFormula& operator=(const WrittenFormula&) = delete;

    /// Whether it can be read, letters of the wrong case put right.
    bool is_formula() const { return formula_.has_value(); }
    /// The first symbol that is no element's; empty where there is none.
    std::string_view unknown_symbol() const;
    /// Whether letters had the wrong case; they can mean one element only.
    bool has_wrong_case() const { return has_wrong_case_; }
    /// Whether symbols stand together without a blank.
    bool lacks_blanks() const;
    /// Whether two capitals without a blank may also be meant as one symbol: "NI" and "CO".
    bool is_ambiguous() const;
    /// Whether it is one moiety taken once, without brackets, and no element stands in two places.
    bool is_sum() const;
    /// Whether carbon and hydrogen stand in front, and the others in the order of the alphabet;
    /// without carbon all in that order. Deuterium may stand where hydrogen may.
    bool is_in_order() const;
    bool has_charges() const;
    /// Whether all its counts are numbers and all symbols are elements'.
    bool can_be_counted() const;

    /// What there is of each element, where it can be counted.
    ElementTotals totals() const { return totals_of(*formula_, text_); }
    /// Likewise of its only moiety, of which there are n or another unknown number.
    std::optional<ElementTotals> totals_of_unit() const;
    const Formula& formula() const { return *formula_; }

    /// As the convention wants it, with the order as it is.
    std::string with_blanks() const;
    /// Likewise as a sum in order; nothing where that would round counts or lose charges.
    std::optional<std::string> as_sum() const;

private:
    std::string text_;  // in the right case
    bool has_wrong_case_ = false;
    std::optional<Formula> formula_;  // refers to text_
};
