#include "search/CommonSubstringFinderAdapter.h"

#include "search/CommonSubstringFinder.h"
#include "search/NormalisedString.h"

CommonSubstringFinderAdapter::CommonSubstringFinderAdapter(const StringNormalisationPolicy& policy,
                                                           unsigned int min_match_length,
                                                           const std::string& term)
    : TextComparisonSearch(term), policy_(policy), min_match_length_(min_match_length) {}

CommonSubstringFinderAdapter::~CommonSubstringFinderAdapter() = default;

bool CommonSubstringFinderAdapter::comparison_search(const std::string& term,
                                                     const std::string& text,
                                                     std::vector<StringSlice>& slices) const {
    const NormalisedString normal_text(policy_, text);
    const std::string compared_text = normal_text.normalised();
    const std::string compared_term = NormalisedString(policy_, term).normalised();
    if (compared_text.empty() || compared_term.empty()) return false;
    if (exact_search(term, text, slices)) return true;
    slices =
        CommonSubstringFinder().matched_stretches(compared_term, compared_text, min_match_length_);
    normal_text.denormalise_slices(slices.begin(), slices.end(), slices.begin());
    return false;
}
