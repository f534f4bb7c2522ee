#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tasks/SearchedText.h"

/// How terms are looked for.
struct TermSettings {
    Folding folding;
    bool whole_words = false;  ///< Parts of words are no matches.
};

/// Something that users look for in entries. Never changes: threads may share it.
class Term {
public:
    /// `written` is what its user wrote. It looks into `own_fields`; without any, into all that the
    /// user looks into.
    explicit Term(std::string written, std::vector<Field> own_fields = {})
        : written_(std::move(written)), own_fields_(std::move(own_fields)) {}
    Term(const Term&) = delete;
    Term& operator=(const Term&) = delete;
    virtual ~Term();

    const std::string& written() const { return written_; }
    const std::vector<Field>& own_fields() const { return own_fields_; }

    /// Whether a text of the field may hold it.
    virtual bool may_stand_in(const Field& field) const;
    /// Whether the entry may have it: what can be told without its texts.
    virtual bool may_be_of(const CifEntry& entry) const;
    /// Whether a text with that skeleton may hold it, as SearchedText::skeleton() has them.
    virtual bool may_stand_on(const std::string& skeleton) const;
    /// Whether a field of the entry may hold it: what can be told soon, and without its text.
    virtual bool may_stand_in(const CifEntry& entry, const Field& field) const;
    /// Appends the ranges of the shown text that are it, ascending and disjoint. O(n) for n
    /// characters.
    virtual void find(const SearchedText& text, std::vector<StringSlice>& ranges) const = 0;

private:
    std::string written_;
    std::vector<Field> own_fields_;
};
