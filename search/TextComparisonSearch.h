#pragma once

#include "search/TextSearch.h"

/// A search that compares one stored term with each text it is given.
class TextComparisonSearch : public TextSearch {
public:
    /// The term is empty.
    TextComparisonSearch() = default;
    /// Keeps a copy of the term.
    explicit TextComparisonSearch(const std::string& term) : term_(term) {}
    ~TextComparisonSearch() override;

    /// Hands the stored term and `text` to comparison_search(); returns its answer. Throws
    /// std::length_error for a text of more than 4294967294 characters, and what that throws.
    bool search(const std::string& text, std::vector<StringSlice>& slices) const final;
    void set_search_term(const std::string& term) final { term_ = term; }

    /// Appends the ranges of `text` that match to `slices`. Returns whether the text as a whole
    /// matched: false may still come with ranges.
    virtual bool comparison_search(const std::string& term, const std::string& text,
                                   std::vector<StringSlice>& slices) const = 0;

protected:
    /// Whether both are equal to the byte and not empty; then appends the whole text to `slices`.
    bool exact_search(const std::string& term, const std::string& text,
                      std::vector<StringSlice>& slices) const;

private:
    std::string term_;
};
