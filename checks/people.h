#pragma once

#include <string>
#include <vector>

/// A person of a list who may be one before.
struct RepeatedPerson {
    std::size_t index, before;  ///< In the list.
    bool is_sure;               ///< More than a surname and one initial says so.
};

/// Those of the names, in UTF-8, who have the surname of one before and the same given names, or
/// such as can stand for these; each once. O(n log n) for n names: of many with one surname only
/// the first are compared.
std::vector<RepeatedPerson> repeated_people(const std::vector<std::string>& names);
