#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "entries/EntryReader.h"

/// The entries of a file by the names of their blocks.
class EntryNames {
public:
    /// Refers to the bytes of the entries.
    explicit EntryNames(const EntryReader& entries);

    /// The names in the order of the entries.
    const std::vector<std::string_view>& all() const { return all_; }
    /// The entries whose block has that name, in their order: those that have it as it is, else
    /// those for which case does not count, else those that have it without the "data_" in front.
    /// O(log n) for n entries.
    std::vector<std::size_t> named(const std::string& name) const;

private:
    std::vector<std::string_view> all_;
    std::map<std::string, std::vector<std::size_t>> by_lower_case_;
};
