#include "search/CombinedPublicationComparisonSearch.h"

#include <string_view>
#include <utility>

#include "suppliers/CombinedPublicationTagSupplier.h"
#include "text/Position.h"

namespace {

/// The text between the first of each tag, or [0, 0) where one is missing.
StringSlice find_tagged_text(const std::string& begin_tag, const std::string& end_tag,
                             const std::string& s) {
    const std::size_t begin = s.find(begin_tag);
    const std::size_t end = s.find(end_tag);
    if (begin == std::string::npos || end == std::string::npos) return {0, 0};
    return {to_position(begin + begin_tag.size()), to_position(end)};
}

bool check_for_match(const std::string& begin_tag, const std::string& end_tag,
                     const std::string& term, const std::string& text,
                     std::vector<StringSlice>& slices) {
    const StringSlice in_term = find_tagged_text(begin_tag, end_tag, term);
    const StringSlice in_text = find_tagged_text(begin_tag, end_tag, text);
    if (std::string_view(term).substr(in_term.from(), in_term.length()) !=
        std::string_view(text).substr(in_text.from(), in_text.length())) {
        return false;
    }
    slices.push_back(in_text);
    return true;
}

}  // namespace

CombinedPublicationComparisonSearch::~CombinedPublicationComparisonSearch() = default;

bool CombinedPublicationComparisonSearch::comparison_search(
    const std::string& term, const std::string& text, std::vector<StringSlice>& slices) const {
    check_length(text);  // throws where positions would not do
    const CombinedPublicationTagSupplier tags;
    const std::pair<std::string, std::string> parts[] = {{tags.begin_jnl(), tags.end_jnl()},
                                                         {tags.begin_year(), tags.end_year()},
                                                         {tags.begin_vol(), tags.end_vol()},
                                                         {tags.begin_page(), tags.end_page()}};
    bool all = true;
    for (const auto& [begin_tag, end_tag] : parts) {
        all = check_for_match(begin_tag, end_tag, term, text, slices) && all;
    }
    return all;
}
