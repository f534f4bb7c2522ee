#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tasks/EntryFields.h"
#include "tasks/Term.h"

/// Looks for terms in entries. Never changes: threads may share it.
class EntryFinder {
public:
    using Terms = std::vector<std::unique_ptr<Term>>;

    /// The terms look into the fields that are wanted, and some into fields of their own, which
    /// stand behind these.
    EntryFinder(std::span<const Field> wanted, Terms terms, const Folding& folding);

    /// The fields of an entry in which a term is, where each term is in some; none otherwise, and
    /// the problems of texts that cannot be looked into. Only texts with matches are styled.
    EntryFields find(const CifEntry& entry) const;
    /// Whether find() has fields, without styling any.
    bool is_in(const CifEntry& entry) const;
    /// What find() has of that one field, whatever is in the others. Throws what the text fails
    /// with.
    std::optional<EntryField> matches_in(const CifEntry& entry, const Field& field) const;

private:
    /// A field, and the terms that look into it, by their places.
    struct SearchedField {
        Field field;
        std::vector<std::size_t> terms;
    };
    struct FoundField;

    void add(const Field& field);
    bool may_be_in(const CifEntry& entry) const;
    std::optional<FoundField> found_in(const CifEntry& entry, const SearchedField& searched) const;
    std::vector<FoundField> found_fields(const CifEntry& entry,
                                         std::vector<Problem>& problems) const;

    Terms terms_;
    Folding folding_;
    std::vector<SearchedField> fields_;
};
