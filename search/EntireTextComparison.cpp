#include "search/EntireTextComparison.h"

EntireTextComparison::~EntireTextComparison() = default;

bool EntireTextComparison::comparison_search(const std::string& term, const std::string& text,
                                             std::vector<StringSlice>& slices) const {
    return exact_search(term, text, slices);
}
