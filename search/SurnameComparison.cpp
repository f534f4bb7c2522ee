#include "search/SurnameComparison.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "text/Position.h"

namespace {

/// A name or a part of one, and where it stands in the searched string.
using Entry = std::pair<std::string_view, StringSlice>;

/// Appends the pieces of `text`, which begins at position `base`, empty ones too.
void split_text_on(std::vector<Entry>& list, std::string_view text, std::string_view separators,
                   unsigned int base) {
    std::size_t start = 0;
    while (true) {
        const std::size_t end = std::min(text.find_first_of(separators, start), text.size());
        list.emplace_back(text.substr(start, end - start),
                          StringSlice(base + to_position(start), base + to_position(end)));
        if (end == text.size()) return;
        start = end + 1;
    }
}

void strip_spaces(Entry& entry) {
    auto& [text, slice] = entry;
    const unsigned int leading = to_position(std::min(text.find_first_not_of(' '), text.size()));
    const bool blank = leading == text.size();
    text =
        blank ? std::string_view() : text.substr(leading, text.find_last_not_of(' ') + 1 - leading);
    const unsigned int from = slice.from() + (blank ? 0 : leading);
    slice = StringSlice(from, from + length_of(text));
}

std::vector<Entry> separate_names(const std::string& text) {
    check_length(text);  // throws where positions would not do
    std::vector<Entry> names;
    split_text_on(names, text, ",", 0);
    for (Entry& name : names) strip_spaces(name);
    return names;
}

std::vector<Entry> extract_surnames(const Entry& name) {
    const auto& [text, slice] = name;
    const std::size_t stop = text.rfind('.');
    std::vector<Entry> surnames;
    if (stop == std::string_view::npos) {
        split_text_on(surnames, text, " -", slice.from());
        return surnames;
    }
    split_text_on(surnames, text.substr(stop + 1), " -", slice.from() + to_position(stop) + 1);
    // What is this short behind the initials is one more of them, not a surname.
    if (surnames.back().first.size() <= 2) surnames.pop_back();
    return surnames;
}

/// The same for two lists exactly when they hold the same surnames, each as often. No surname holds
/// a comma: names end there.
std::string surname_key(const std::vector<Entry>& surnames) {
    std::vector<std::string_view> sorted;
    sorted.reserve(surnames.size());
    for (const Entry& surname : surnames) sorted.push_back(surname.first);
    std::sort(sorted.begin(), sorted.end());
    std::string key;
    for (const std::string_view surname : sorted) key.append(surname).push_back(',');
    return key;
}

/// A collection from which items are taken one by one. Sorted, not hashed: names that were made to
/// collide cost no more than others.
template <class Item>
class Stock {
public:
    explicit Stock(std::vector<Item> items) {
        std::sort(items.begin(), items.end());
        for (Item& item : items) {
            if (counted_.empty() || counted_.back().first != item) {
                counted_.emplace_back(std::move(item), 0U);
            }
            ++counted_.back().second;
        }
    }

    /// Takes one of the items that equal `item`; returns whether there was one left.
    bool take(const Item& item) {
        const auto found = std::lower_bound(
            counted_.begin(), counted_.end(), item,
            [](const auto& counted, const Item& wanted) { return counted.first < wanted; });
        if (found == counted_.end() || found->first != item || found->second == 0) return false;
        --found->second;
        return true;
    }

private:
    std::vector<std::pair<Item, unsigned int>> counted_;  // each item and how many are left
};

}  // namespace

SurnameComparison::~SurnameComparison() = default;

bool SurnameComparison::comparison_search(const std::string& term, const std::string& text,
                                          std::vector<StringSlice>& slices) const {
    const std::vector<Entry> term_names = separate_names(term);
    std::vector<std::string_view> whole_names;
    whole_names.reserve(term_names.size());
    for (const Entry& name : term_names) whole_names.push_back(name.first);
    Stock names_left(std::move(whole_names));
    std::vector<Entry> text_names;
    for (const Entry& name : separate_names(text)) {
        if (names_left.take(name.first)) {
            slices.push_back(name.second);
        } else {
            text_names.push_back(name);
        }
    }

    std::vector<std::string> surname_keys;
    if (!text_names.empty()) {
        for (const Entry& name : term_names) {
            if (!names_left.take(name.first)) continue;
            const std::vector<Entry> surnames = extract_surnames(name);
            if (!surnames.empty()) surname_keys.push_back(surname_key(surnames));
        }
    }
    Stock surnames_left(std::move(surname_keys));
    for (const Entry& name : text_names) {
        const std::vector<Entry> surnames = extract_surnames(name);
        if (surnames.empty() || !surnames_left.take(surname_key(surnames))) continue;
        for (const Entry& surname : surnames) slices.push_back(surname.second);
    }
    return term == text;
}
