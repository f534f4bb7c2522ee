#include "tasks/OrderedSearch.h"

#include <algorithm>
#include <utility>

#include "text/StringSliceReducer.h"

OrderedSearch::OrderedSearch(THandle<TextSearch> search) : search_(std::move(search)) {}

OrderedSearch::~OrderedSearch() = default;

bool OrderedSearch::search(const std::string& text, std::vector<StringSlice>& slices) const {
    std::vector<StringSlice> found;
    matched_ = search_->search(text, found);
    ranges_ = StringSliceReducer(found.begin(), found.end()).slices();
    std::sort(ranges_.begin(), ranges_.end(),
              [](const StringSlice& a, const StringSlice& b) { return a.from() < b.from(); });
    slices.insert(slices.end(), ranges_.begin(), ranges_.end());
    return matched_;
}
