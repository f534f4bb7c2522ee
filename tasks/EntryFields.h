#pragma once

#include <exception>
#include <span>
#include <string>
#include <vector>

#include "entries/CifEntry.h"
#include "tasks/Field.h"
#include "text/TextItem.h"

/// Where a field is what a user looks for.
struct FieldMatch {
    std::string term;   ///< As the user wrote it.
    std::string shown;  ///< What the field shows there.
    StringSlice place;  ///< In the field's text.
};

/// One field of an entry with its styles.
struct EntryField {
    const char* label;
    const char* group;
    TextItem item;
    std::vector<FieldMatch> matches{};  ///< By term, of each in the order of their places.
};

class EntryFinder;

/// The fields of an entry that have a text, and the problems of those that cannot be styled.
struct EntryFields {
    EntryFields() = default;
    /// The fields in the order of `wanted`, with what `finder`, if any, finds in them highlighted.
    EntryFields(const CifEntry& entry, std::span<const Field> wanted,
                const EntryFinder* finder = nullptr);

    std::vector<EntryField> fields;
    std::vector<Problem> problems;
};

/// Why a field of an entry cannot be styled.
Problem problem_of(const CifEntry& entry, const Field& field, const std::exception& error);
