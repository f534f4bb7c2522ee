#pragma once

#include <string>
#include <utility>
#include <vector>

#include "search/TextSearch.h"

/// Finds what was found before, whatever the text and the term.
class FoundRanges : public TextSearch {
public:
    FoundRanges(std::vector<StringSlice> ranges, bool is_whole_text)
        : ranges_(std::move(ranges)), is_whole_text_(is_whole_text) {}
    ~FoundRanges() override;

    bool search(const std::string& text, std::vector<StringSlice>& slices) const override;
    void set_search_term(const std::string& term) override;

private:
    std::vector<StringSlice> ranges_;
    bool is_whole_text_;
};
