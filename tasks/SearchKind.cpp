#include "tasks/SearchKind.h"

#include <cmath>
#include <optional>

#include "comparison/FoldedSearch.h"
#include "entries/read_whole.h"
#include "finders/ChemicalNameMatchStyleFinder.h"
#include "search/CombinedPublicationComparisonSearch.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/EntireTextComparison.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"
#include "suppliers/CombinedPublicationTagSupplier.h"

namespace {

template <class Search>
THandle<TextSearch> make(const SearchSettings& /*settings*/) {
    return make_handle<Search>();
}

THandle<TextSearch> make_line_search(const SearchSettings& /*settings*/) {
    return make_handle<MultipleLineTextComparison>(make_handle<EntireTextComparison>());
}

THandle<TextSearch> make_numeric_search(const SearchSettings& settings) {
    const std::optional<int> whole = read_whole<int>(settings.tolerance);
    if (whole) return make_handle<NumericComparison>(*whole);
    return make_handle<NumericComparison>(read_whole<double>(settings.tolerance).value());
}

THandle<TextSearch> make_substring_search(const SearchSettings& settings) {
    return make_handle<CommonSubstringFinderAdapter>(ChemicalNameMatchStyleFinder::normalisation(),
                                                     settings.min_match_length, std::string(),
                                                     CommonSubstringFinderAdapter::Effort::limited);
}

bool any(const std::string& /*term*/) { return true; }

bool has_digit(const std::string& term) {
    return term.find_first_of("0123456789") != std::string::npos;
}

/// Whether the term has a part of a reference.
bool has_part(const std::string& term) {
    const CombinedPublicationTagSupplier tags;
    for (const std::string& tag :
         {tags.begin_jnl(), tags.begin_vol(), tags.begin_year(), tags.begin_page()}) {
        if (term.find(tag) != std::string::npos) return true;
    }
    return false;
}

constexpr SearchKind kind_rows[] = {
    {"exact", "the text, when it equals the term", false, make<EntireTextComparison>, any},
    {"lines", "lines that equal a line of the term; whole when it equals the term", true,
     make_line_search, any},
    {"numeric",
     "each number within --tolerance of the term's number of the same place; whole when all agree",
     false, make_numeric_search, has_digit},
    {"surnames", "authors of the term, or their surnames; whole when it equals the term", false,
     make<SurnameComparison>, any},
    {"publication",
     "<j> journal, <y> year, <v> volume and <p> page that equal the term's; whole when all four "
     "agree",
     false, make<CombinedPublicationComparisonSearch>, has_part},
    {"substring",
     "runs of --min-length characters or more that also stand in the term, blanks and punctuation "
     "aside; whole when it equals the term",
     false, make_substring_search, any},
};

}  // namespace

std::span<const SearchKind> search_kinds() { return kind_rows; }

THandle<TextSearch> make_search(const SearchKind& kind, const SearchSettings& settings) {
    if (!settings.folding) return kind.make_search(settings);
    Folding folding = *settings.folding;
    folding.blanks = folding.blanks && !kind.keeps_lines;
    return make_handle<FoldedSearch>(kind.make_search(settings), folding);
}

bool is_tolerance(const std::string& tolerance) {
    const std::optional<double> number = read_whole<double>(tolerance);
    return number && std::isfinite(*number) && *number >= 0;
}
