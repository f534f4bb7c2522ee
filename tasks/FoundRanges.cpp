#include "tasks/FoundRanges.h"

FoundRanges::~FoundRanges() = default;

bool FoundRanges::search(const std::string& /*text*/, std::vector<StringSlice>& slices) const {
    slices.insert(slices.end(), ranges_.begin(), ranges_.end());
    return is_whole_text_;
}

void FoundRanges::set_search_term(const std::string& /*term*/) {}
