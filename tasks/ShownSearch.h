#pragma once

#include "host/THandle.h"
#include "search/TextSearch.h"
#include "tasks/Source.h"
#include "text/TextItem.h"

/// Asks another search about texts as they are shown, and gives the ranges of what shows them.
class ShownSearch : public TextSearch {
public:
    /// `source` is the kind of the texts.
    ShownSearch(THandle<TextSearch> search, const Source& source);
    ~ShownSearch() override;

    bool search(const std::string& text, std::vector<StringSlice>& slices) const override;
    void set_search_term(const std::string& term) override { search_->set_search_term(term); }

private:
    THandle<TextSearch> search_;
    mutable TextItem item_;
};
