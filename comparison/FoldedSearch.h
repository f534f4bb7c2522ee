#pragma once

#include "comparison/folding.h"
#include "host/THandle.h"
#include "search/TextSearch.h"

/// Asks another search about folded texts, with a folded term, and gives the ranges of the texts
/// as they are. A range that holds a character only in part, such as half of ß, does not hold it;
/// one that holds none is dropped. The others stay in the order of that search.
class FoldedSearch : public TextSearch {
public:
    /// The term of `search` is lost.
    FoldedSearch(THandle<TextSearch> search, const Folding& folding);
    ~FoldedSearch() override;

    /// Returns what the other search says of the folded text; throws what it throws. O(n + k log n)
    /// for k ranges in n characters, beside that search.
    bool search(const std::string& text, std::vector<StringSlice>& slices) const override;
    void set_search_term(const std::string& term) override;

private:
    THandle<TextSearch> search_;
    Folding folding_;
};
