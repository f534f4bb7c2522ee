#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

/// A read-only dictionary from the members of the enumeration T to their texts. It is built once
/// from a constant table and only read from then on, by any number of threads.
template <class T>
class EnumTextMapping {
public:
    /// One row of the table.
    struct Initialiser {
        T member;          ///< Any value of T.
        const char* text;  ///< Not null; copied.
    };

    /// Throws std::invalid_argument, "Internal Error: in EnumTextMapping::EnumTextMapping, size
    /// cannot be zero" for no rows and "... mapping is not unique" when two share member or text.
    /// O(r log r) for r rows.
    EnumTextMapping(const Initialiser* rows, unsigned int size);

    /// A copy of the text of `member`; throws std::invalid_argument "Internal Error: member N not
    /// in EnumTextMapping" when there is none. Linear in the rows: the tables are small.
    std::string text(T member) const;
    /// Appends every member to `out`, in ascending order of the texts' bytes.
    void all_members(std::vector<T>& out) const;

private:
    using Entry = std::pair<T, std::string>;

    struct SortOnText {
        bool operator()(const Entry& a, const Entry& b) const { return a.second < b.second; }
    };
    struct TextEqual {
        bool operator()(const Entry& a, const Entry& b) const { return a.second == b.second; }
    };
    struct IDEqual {
        T member;
        bool operator()(const Entry& entry) const { return entry.first == member; }
    };

    bool texts_unique() const;
    bool members_unique() const;

    std::vector<Entry> entries_;  // ascending by text
};

template <class T>
EnumTextMapping<T>::EnumTextMapping(const Initialiser* rows, unsigned int size) {
    const std::string where = "Internal Error: in EnumTextMapping::EnumTextMapping, ";
    if (size == 0) throw std::invalid_argument(where + "size cannot be zero");
    entries_.reserve(size);
    for (unsigned int i = 0; i < size; ++i) entries_.emplace_back(rows[i].member, rows[i].text);
    std::sort(entries_.begin(), entries_.end(), SortOnText());
    if (!texts_unique() || !members_unique()) {
        throw std::invalid_argument(where + "mapping is not unique");
    }
}

template <class T>
std::string EnumTextMapping<T>::text(T member) const {
    const auto entry = std::find_if(entries_.begin(), entries_.end(), IDEqual{member});
    if (entry == entries_.end()) {
        const auto value = +static_cast<std::underlying_type_t<T>>(member);  // + widens characters
        throw std::invalid_argument("Internal Error: member " + std::to_string(value) +
                                    " not in EnumTextMapping");
    }
    return entry->second;
}

template <class T>
void EnumTextMapping<T>::all_members(std::vector<T>& out) const {
    for (const Entry& entry : entries_) out.push_back(entry.first);
}

template <class T>
bool EnumTextMapping<T>::texts_unique() const {
    return std::adjacent_find(entries_.begin(), entries_.end(), TextEqual()) == entries_.end();
}

template <class T>
bool EnumTextMapping<T>::members_unique() const {
    std::vector<T> members;
    all_members(members);
    std::sort(members.begin(), members.end());
    return std::adjacent_find(members.begin(), members.end()) == members.end();
}
