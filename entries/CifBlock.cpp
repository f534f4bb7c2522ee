#include <algorithm>

#include "entries/CifDocument.h"

namespace {

/// A character of a tag, of which the case does not count. Names of newer dictionaries have a point
/// where older ones have a line: "_cell.length_a".
int in_tag(char c) {
    if (c == '.') return '_';
    return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c;
}

/// Whether `a` stands before, at (0) or behind `b`.
int compare_tags(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shorter; ++i) {
        const int difference = in_tag(a[i]) - in_tag(b[i]);
        if (difference != 0) return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

bool tag_before(const CifItem* item, std::string_view tag) {
    return compare_tags(item->tag(), tag) < 0;
}

}  // namespace

bool CifItem::has_text() const {
    for (std::size_t row = 0; row < size_; ++row) {
        if (!(*this)[row].text().empty()) return true;
    }
    return false;
}

CifBlock::CifBlock(std::string_view name, Items items) : name_(name), items_(std::move(items)) {
    std::stable_sort(items_.begin(), items_.end(),
                     [](const CifItem* a, const CifItem* b) { return tag_before(a, b->tag()); });
}

const CifItem* CifBlock::find(std::string_view tag) const {
    const auto item = std::lower_bound(items_.begin(), items_.end(), tag, tag_before);
    return item != items_.end() && compare_tags((*item)->tag(), tag) == 0 ? *item : nullptr;
}

bool CifBlock::has_any(std::string_view prefix) const {
    const auto item = std::lower_bound(items_.begin(), items_.end(), prefix, tag_before);
    return item != items_.end() &&
           compare_tags((*item)->tag().substr(0, prefix.size()), prefix) == 0;
}

CifBlock::Items CifBlock::find_all(std::string_view prefix) const {
    Items found;
    for (auto item = std::lower_bound(items_.begin(), items_.end(), prefix, tag_before);
         item != items_.end() && compare_tags((*item)->tag().substr(0, prefix.size()), prefix) == 0;
         ++item) {
        const bool repeated =
            !found.empty() && compare_tags(found.back()->tag(), (*item)->tag()) == 0;
        if (!(*item)->in_loop() && !repeated) found.push_back(*item);
    }
    return found;
}

CifBlock::Items CifBlock::repetitions() const {
    Items repeated;
    for (std::size_t i = 1; i < items_.size(); ++i) {
        if (compare_tags(items_[i - 1]->tag(), items_[i]->tag()) == 0) {
            repeated.push_back(items_[i]);
        }
    }
    std::sort(repeated.begin(), repeated.end());  // they stand in one vector
    return repeated;
}
