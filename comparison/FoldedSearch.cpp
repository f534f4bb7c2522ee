#include "comparison/FoldedSearch.h"

#include <utility>

#include "comparison/FoldedText.h"

FoldedSearch::FoldedSearch(THandle<TextSearch> search, const Folding& folding)
    : search_(std::move(search)), folding_(folding) {}

FoldedSearch::~FoldedSearch() = default;

bool FoldedSearch::search(const std::string& text, std::vector<StringSlice>& slices) const {
    const FoldedText folded(text, folding_);
    std::vector<StringSlice> found;
    const bool matched = search_->search(folded.text(), found);
    for (const StringSlice& range : found) {
        const std::optional<StringSlice> in_text = folded.whole_characters(range);
        if (in_text) slices.push_back(*in_text);
    }
    return matched;
}

void FoldedSearch::set_search_term(const std::string& term) {
    search_->set_search_term(folded(term, folding_));
}
