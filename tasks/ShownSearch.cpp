#include "tasks/ShownSearch.h"

#include <utility>

#include "markup/DisplayedText.h"

ShownSearch::ShownSearch(THandle<TextSearch> search, const Source& source)
    : search_(std::move(search)), item_(source.make_finder()) {}

ShownSearch::~ShownSearch() = default;

bool ShownSearch::search(const std::string& text, std::vector<StringSlice>& slices) const {
    item_.set_text(text);
    const DisplayedText shown(item_);
    std::vector<StringSlice> found;
    const bool matched = search_->search(shown.text(), found);
    for (const StringSlice& slice : found) {
        slices.push_back(shown.in_item(slice, DisplayedText::bytes));
    }
    return matched;
}
