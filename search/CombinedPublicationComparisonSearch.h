#pragma once

#include "search/TextComparisonSearch.h"

/// Compares the parts of literature references: journal, year, volume and page, each between the
/// tags of CombinedPublicationTagSupplier.
class CombinedPublicationComparisonSearch : public TextComparisonSearch {
public:
    ~CombinedPublicationComparisonSearch() override;

    /// Appends each part of the text that equals the same part of the term, in the order above; a
    /// part that both lack counts as equal and gives [0, 0). True when all four are equal. Throws
    /// std::range_error "length of StringSlice error" for an end tag before its opening tag. O(n)
    /// for n characters of both.
    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;
};
