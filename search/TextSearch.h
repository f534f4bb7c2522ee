#pragma once

#include <string>
#include <vector>

#include "text/StringSlice.h"

/// Tells where a text matches a search term. Searching never changes a search, so that several
/// threads may search with one as long as nobody sets its term.
class TextSearch {
public:
    TextSearch() = default;
    TextSearch(const TextSearch&) = delete;
    TextSearch& operator=(const TextSearch&) = delete;
    virtual ~TextSearch();

    /// Appends the ranges of `text`, in character positions, that match the term; returns whether
    /// the text as a whole matched, in a sense that each search states, with what it costs.
    virtual bool search(const std::string& text, std::vector<StringSlice>& slices) const = 0;
    /// Replaces the term of later searches.
    virtual void set_search_term(const std::string& term) = 0;
};
