#pragma once

#include <optional>
#include <span>
#include <string>

#include "comparison/ComparisonKind.h"
#include "entries/CifEntry.h"
#include "fields/LMRFieldNames.h"
#include "tasks/SearchKind.h"
#include "tasks/Source.h"

/// How a field is called, styled, searched and compared.
struct Field {
    const char* label;
    const char* group;     ///< "Other" where the catalogue has none.
    const Source* source;  ///< Of the texts in the records.
    const SearchKind* search;
    const ComparisonKind* comparison;
    std::optional<LMRFieldNames::TextID> id;  ///< None: beyond the catalogue.
};

/// All fields, those of the catalogue first, in its order.
std::span<const Field> fields();
/// A field of the catalogue. Throws what LMRFieldNames::text() throws.
const Field& field_of(LMRFieldNames::TextID id);

/// What an entry has of a field.
struct FieldText {
    std::string text;      ///< Empty: nothing.
    const Source* source;  ///< The kind of text that it is.
    bool is_of_records;    ///< Made of the entry's records, and not as the file has it.

    /// As a reader sees it where there are codes in it, else as it is.
    std::string shown() const;
};
FieldText text_of(const CifEntry& entry, const Field& field);
