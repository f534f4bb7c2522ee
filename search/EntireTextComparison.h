#pragma once

#include "search/TextComparisonSearch.h"

/// Matches a text that equals the term, as a whole and to the byte. An empty term matches nothing.
/// O(n) for n characters.
class EntireTextComparison : public TextComparisonSearch {
public:
    ~EntireTextComparison() override;

    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;
};
