#include "search/TextComparisonSearch.h"

#include "text/Position.h"

TextComparisonSearch::~TextComparisonSearch() = default;

bool TextComparisonSearch::search(const std::string& text, std::vector<StringSlice>& slices) const {
    check_length(text);  // throws where positions would not do
    return comparison_search(term_, text, slices);
}

bool TextComparisonSearch::exact_search(const std::string& term, const std::string& text,
                                        std::vector<StringSlice>& slices) const {
    if (term != text || text.empty()) return false;
    slices.emplace_back(0, length_of(text));
    return true;
}
