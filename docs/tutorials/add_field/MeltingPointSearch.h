#pragma once

#include "search/TextComparisonSearch.h"

/// Compares melting points as ranges: those match that share a temperature.
class MeltingPointSearch : public TextComparisonSearch {
public:
    using TextComparisonSearch::TextComparisonSearch;
    ~MeltingPointSearch() override;

    /// Appends the text's range where it meets the term's. True when both are the same; texts
    /// without a number never match. O(n) for n characters.
    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;
};
