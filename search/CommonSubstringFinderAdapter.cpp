#include "search/CommonSubstringFinderAdapter.h"

#include <cstdint>
#include <limits>

#include "search/CommonSubstringFinder.h"
#include "search/NormalisedString.h"

namespace {

constexpr std::uint64_t no_limit = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t work_limit = 100'000'000;  // some seconds

}  // namespace

CommonSubstringFinderAdapter::CommonSubstringFinderAdapter(const StringNormalisationPolicy& policy,
                                                           unsigned int min_match_length,
                                                           const std::string& term, Effort effort)
    : TextComparisonSearch(term),
      policy_(policy),
      min_match_length_(min_match_length),
      effort_(effort) {}

CommonSubstringFinderAdapter::~CommonSubstringFinderAdapter() = default;

bool CommonSubstringFinderAdapter::comparison_search(const std::string& term,
                                                     const std::string& text,
                                                     std::vector<StringSlice>& slices) const {
    const NormalisedString normal_text(policy_, text);
    const std::string compared_text = normal_text.normalised();
    const std::string compared_term = NormalisedString(policy_, term).normalised();
    if (compared_text.empty() || compared_term.empty()) return false;
    if (exact_search(term, text, slices)) return true;
    const CommonSubstringFinder finder;
    if (effort_ == Effort::linear) {
        slices = finder.common_stretches(compared_term, compared_text, min_match_length_);
    } else {
        slices = finder.matched_stretches(compared_term, compared_text, min_match_length_,
                                          effort_ == Effort::limited ? work_limit : no_limit);
    }
    normal_text.denormalise_slices(slices.begin(), slices.end(), slices.begin());
    return false;
}
