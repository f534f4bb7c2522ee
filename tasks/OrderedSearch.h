#pragma once

#include "host/THandle.h"
#include "search/TextSearch.h"

/// Asks another search and puts its ranges in the shape that styles and scripts need: ascending,
/// disjoint and none empty. It keeps the last answer, for those who do not see it.
class OrderedSearch : public TextSearch {
public:
    explicit OrderedSearch(THandle<TextSearch> search);
    ~OrderedSearch() override;

    bool search(const std::string& text, std::vector<StringSlice>& slices) const override;
    void set_search_term(const std::string& term) override { search_->set_search_term(term); }

    /// What the last search returned, and the ranges that it found.
    bool matched() const { return matched_; }
    const std::vector<StringSlice>& ranges() const { return ranges_; }

private:
    THandle<TextSearch> search_;
    mutable bool matched_ = false;
    mutable std::vector<StringSlice> ranges_;
};
