#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tasks/Term.h"

/// A term that looks into some fields in a way of its own.
class FieldTerm : public Term {
public:
    using Find = std::function<void(const SearchedText& text, std::vector<StringSlice>& ranges)>;
    using MayBeOf = std::function<bool(const CifEntry& entry)>;

    /// `find` and `may_be_of` do what the operations of these names do; without the latter the term
    /// may be of any entry.
    FieldTerm(std::string written, std::vector<Field> own_fields, Find find,
              MayBeOf may_be_of = nullptr);
    ~FieldTerm() override;

    bool may_be_of(const CifEntry& entry) const override;
    void find(const SearchedText& text, std::vector<StringSlice>& ranges) const override;

private:
    Find find_;
    MayBeOf may_be_of_;
};
