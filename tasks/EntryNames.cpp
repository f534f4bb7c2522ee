#include "tasks/EntryNames.h"

#include <algorithm>
#include <iterator>

#include "entries/cif_text.h"

namespace {

constexpr std::string_view heading = "data_";

}  // namespace

EntryNames::EntryNames(const EntryReader& entries) {
    all_.reserve(entries.size());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string_view name = entries.document().name_of(entries.block_of(i));
        all_.push_back(name);
        by_lower_case_[in_lower_case(name)].push_back(i);
    }
}

std::vector<std::size_t> EntryNames::named(const std::string& name) const {
    const std::string lower = in_lower_case(name);
    auto found = by_lower_case_.find(lower);
    if (found == by_lower_case_.end() && lower.starts_with(heading)) {
        found = by_lower_case_.find(lower.substr(heading.size()));
    }
    if (found == by_lower_case_.end()) return {};
    std::vector<std::size_t> exact;
    std::copy_if(found->second.begin(), found->second.end(), std::back_inserter(exact),
                 [&](std::size_t entry) { return all_[entry] == name; });
    return exact.empty() ? found->second : exact;
}
