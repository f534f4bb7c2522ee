#pragma once

#include "search/TextComparisonSearch.h"

/// Compares lists of authors, separated by commas. A name is initials with full stops and then the
/// surname, whose parts are separated by blanks or hyphens.
class SurnameComparison : public TextComparisonSearch {
public:
    ~SurnameComparison() override;

    /// Appends the names of the text that stand in the term as they are; then, of those left, the
    /// surname parts of each name whose parts are those of a name left of the term, in any order.
    /// Each name answers for one other. True when term and text are equal, whatever was found.
    /// O(n log n) for n characters.
    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;
};
