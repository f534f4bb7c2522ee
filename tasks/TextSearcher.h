#pragma once

#include <string>
#include <vector>

#include "tasks/Highlighting.h"
#include "tasks/SearchKind.h"
#include "text/TextItem.h"

/// Searches texts of one kind for a term, one after the other in one thread.
class TextSearcher {
public:
    TextSearcher(const Source& from, const SearchKind& how, const SearchSettings& settings,
                 const std::string& term);

    /// Searches a text; found() then tells of it. Throws what the search throws.
    void search(const std::string& text);
    /// Likewise, with the matches highlighted in the item that is returned, until the next text.
    /// Throws what the text fails with.
    const TextItem& highlight(const std::string& text);

    /// What was found in the last text: whether all of it matched, in the search's own sense, and
    /// the ranges that did.
    const OrderedSearch& found() const { return highlighting_.search(); }

private:
    Highlighting highlighting_;
    TextItem item_;
};
