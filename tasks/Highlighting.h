#pragma once

#include <string>

#include "tasks/OrderedSearch.h"
#include "tasks/Source.h"

/// Finds the styles of a kind of text and, beside them, the matches of a term.
class Highlighting {
public:
    Highlighting(const Source& source, THandle<TextSearch> search, const std::string& term);

    /// For the item that shall show the matches.
    const THandle<InputTextStyleFinder>& finder() const { return finder_; }
    /// What the search said of the last text of the finder.
    const OrderedSearch& search() const { return *search_; }

private:
    THandle<OrderedSearch> search_;
    THandle<InputTextStyleFinder> finder_;
};
