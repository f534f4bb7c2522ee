#include "MeltingPointSearch.h"

#include "MeltingPoint.h"

MeltingPointSearch::~MeltingPointSearch() = default;

bool MeltingPointSearch::comparison_search(const std::string& term, const std::string& text,
                                           std::vector<StringSlice>& slices) const {
    const auto wanted = find_melting_point(term);
    const auto found = find_melting_point(text);
    if (!wanted || !found || found->to < wanted->from || wanted->to < found->from) return false;
    slices.push_back(found->slice);
    return found->from == wanted->from && found->to == wanted->to;
}
