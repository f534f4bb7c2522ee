#pragma once

#include "search/StringNormalisationPolicy.h"
#include "search/TextComparisonSearch.h"

/// Marks every stretch of a text that also occurs in the term, once both are normalised.
class CommonSubstringFinderAdapter : public TextComparisonSearch {
public:
    /// What may be spent on texts that have much in common, such as long repetitions.
    enum class Effort {
        any,      ///< What CommonSubstringFinder::matched_stretches() costs.
        limited,  ///< The same, given up with its std::length_error after 100 million characters.
        linear,   ///< What common_stretches() costs, which marks as much or a little more.
    };

    /// `min_match_length` counts normalised characters.
    CommonSubstringFinderAdapter(const StringNormalisationPolicy& policy,
                                 unsigned int min_match_length, const std::string& term,
                                 Effort effort = Effort::any);
    ~CommonSubstringFinderAdapter() override;

    /// True, with the whole text appended to `slices`, when term and text are equal. Otherwise
    /// false, with `slices` as it was when nothing is left of either after normalisation, else made
    /// the disjoint stretches found and nothing but them. Throws what
    /// CommonSubstringFinder throws. Costs what the effort says, and O(k log n) for k stretches in
    /// n characters.
    bool comparison_search(const std::string& term, const std::string& text,
                           std::vector<StringSlice>& slices) const override;

private:
    StringNormalisationPolicy policy_;
    unsigned int min_match_length_;
    Effort effort_;
};
