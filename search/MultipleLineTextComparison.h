#pragma once

#include "host/THandle.h"
#include "search/TextComparisonSearch.h"

/// Searches every line of the term in every line of a text with another search. Its term is left
/// at the last line of the term: one object, and one line search, for one thread at a time.
class MultipleLineTextComparison : public TextComparisonSearch {
public:
    /// Shares the line search, whose own term is lost.
    explicit MultipleLineTextComparison(THandle<TextSearch> line_search);
    ~MultipleLineTextComparison() override;

    /// Appends the merged ranges of all pairs of lines for which the line search says true. True
    /// only when term and text are equal and not empty, whatever the lines did. One call of the
    /// line search for each pair, text lines in order and for each the term lines; for an
    /// EntireTextComparison O(n log n) for n characters instead. Throws what the line search
    /// throws, with `slices` as it was, and the null-handle error when there is none.
    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;

private:
    THandle<TextSearch> line_search_;
};
