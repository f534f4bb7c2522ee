#pragma once

#include "search/TextComparisonSearch.h"

/// Compares the numbers written in a text with those of the term, in order, within a tolerance.
/// A number is an optional sign and digits with an optional point among them, before or behind,
/// as in the "C" locale, whatever the process's is.
class NumericComparison : public TextComparisonSearch {
public:
    /// Numbers agree when they differ by at most `tolerance`.
    explicit NumericComparison(double tolerance) : tolerance_(tolerance) {}
    /// Adds 1e-7 for the rounding of decimal fractions.
    explicit NumericComparison(int tolerance) : tolerance_(tolerance + 1e-7) {}
    ~NumericComparison() override;

    /// Appends each number of the text that agrees with the number of the same place in the term,
    /// and removes every [0, 0) from `slices`. True when the text has numbers and `slices` now
    /// holds as many as those: slices that stood there before count too. A number beyond a double's
    /// range counts as the largest double of its sign. Throws what Regex throws. O(n) for n
    /// characters.
    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;

private:
    double tolerance_;
};
