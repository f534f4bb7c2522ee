#include "finders/ChemicalNameMatchStyleFinder.h"

#include <utility>

#include "search/CommonSubstringFinderAdapter.h"

namespace {

const StringNormalisationPolicy policy(StringNormalisationPolicy::drop_punct |
                                           StringNormalisationPolicy::drop_space,
                                       "");

constexpr unsigned int min_match_length = 3;

}  // namespace

ChemicalNameMatchStyleFinder::ChemicalNameMatchStyleFinder(THandle<InputTextStyleFinder> finder)
    : TextSearchStyleFinder(
          make_handle<CommonSubstringFinderAdapter>(policy, min_match_length, std::string()),
          std::move(finder)) {}

ChemicalNameMatchStyleFinder::~ChemicalNameMatchStyleFinder() = default;

const StringNormalisationPolicy& ChemicalNameMatchStyleFinder::normalisation() { return policy; }
