#include <algorithm>
#include <cstring>

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
    if (a == b) return 0;
    const std::size_t shorter = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < shorter; ++i) {
        const int difference = in_tag(a[i]) - in_tag(b[i]);
        if (difference != 0) return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size();
}

bool begins_with(std::string_view tag, std::string_view prefix) {
    return compare_tags(tag.substr(0, prefix.size()), prefix) == 0;
}

/// In the order of the tags, then of the file, whose items stand in one vector.
bool stands_before(const CifItem* a, const CifItem* b) {
    const int order = compare_tags(a->tag(), b->tag());
    return order != 0 ? order < 0 : a < b;
}

constexpr std::uint64_t in_each_byte(unsigned char byte) { return byte * 0x0101010101010101U; }

/// Up to eight characters of a tag, which have the same number wherever they are the same to
/// in_tag().
std::uint64_t number_of(const char* characters, std::size_t count) {
    std::uint64_t number = 0;
    std::memcpy(&number, characters, count);
    constexpr std::uint64_t low_bits = in_each_byte(0x7F);
    const std::uint64_t apart = number ^ in_each_byte('.');
    const std::uint64_t points = ~(((apart & low_bits) + low_bits) | apart | low_bits) >> 7;
    return (number ^ points * ('.' ^ '_')) | in_each_byte('a' ^ 'A');
}

/// The same for tags that are the same.
std::uint64_t hash_of(std::string_view tag) {
    constexpr std::size_t step = sizeof(std::uint64_t);
    std::uint64_t hash = tag.size();
    for (; !tag.empty(); tag.remove_prefix(std::min(step, tag.size()))) {
        hash = (hash ^ number_of(tag.data(), std::min(step, tag.size()))) * 0x9E3779B97F4A7C15U;
        hash ^= hash >> 32;
    }
    return hash;
}

}  // namespace

bool CifItem::has_text() const {
    for (std::size_t row = 0; row < size_; ++row) {
        if ((*this)[row].has_text()) return true;
    }
    return false;
}

CifBlock::CifBlock(std::string_view name, const Items& items) : name_(name) {
    items_.reserve(items.size());
    for (const CifItem* item : items) items_.push_back({hash_of(item->tag()), item});
    std::sort(items_.begin(), items_.end(), [](const Hashed& a, const Hashed& b) {
        return a.hash != b.hash ? a.hash < b.hash : stands_before(a.item, b.item);
    });
}

const CifItem* CifBlock::find(std::string_view tag) const {
    const std::uint64_t hash = hash_of(tag);
    const auto found = std::lower_bound(items_.begin(), items_.end(), tag,
                                        [hash](const Hashed& item, std::string_view sought) {
                                            if (item.hash != hash) return item.hash < hash;
                                            return compare_tags(item.item->tag(), sought) < 0;
                                        });
    const bool is_there =
        found != items_.end() && found->hash == hash && compare_tags(found->item->tag(), tag) == 0;
    return is_there ? found->item : nullptr;
}

bool CifBlock::has_any(std::string_view prefix) const {
    return std::any_of(items_.begin(), items_.end(), [prefix](const Hashed& item) {
        return begins_with(item.item->tag(), prefix);
    });
}

void CifBlock::sort_by_tags() {
    by_tags_.reserve(items_.size());
    for (const Hashed& item : items_) by_tags_.push_back(item.item);
    std::sort(by_tags_.begin(), by_tags_.end(), stands_before);
}

CifBlock::Items CifBlock::find_all(std::string_view prefix) const {
    Items found;
    const auto add = [&](const CifItem* item) {
        if (!item->in_loop() && begins_with(item->tag(), prefix)) found.push_back(item);
    };
    if (by_tags_.empty()) {
        for (const Hashed& item : items_) add(item.item);
        std::sort(found.begin(), found.end(), stands_before);
    } else {
        auto item = std::lower_bound(by_tags_.begin(), by_tags_.end(), prefix,
                                     [](const CifItem* known, std::string_view sought) {
                                         return compare_tags(known->tag(), sought) < 0;
                                     });
        for (; item != by_tags_.end() && begins_with((*item)->tag(), prefix); ++item) add(*item);
    }
    const auto end = std::unique(
        found.begin(), found.end(),
        [](const CifItem* a, const CifItem* b) { return compare_tags(a->tag(), b->tag()) == 0; });
    found.erase(end, found.end());
    return found;
}

CifBlock::Items CifBlock::repetitions() const {
    Items repeated;
    for (std::size_t i = 1; i < items_.size(); ++i) {
        const Hashed &before = items_[i - 1], &item = items_[i];
        if (before.hash == item.hash && compare_tags(before.item->tag(), item.item->tag()) == 0) {
            repeated.push_back(item.item);
        }
    }
    std::sort(repeated.begin(), repeated.end());
    return repeated;
}
