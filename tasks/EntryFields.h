#pragma once

#include <span>
#include <string>
#include <vector>

#include "entries/CifEntry.h"
#include "tasks/Field.h"
#include "text/TextItem.h"

/// One field of an entry with its styles.
struct EntryField {
    const char* label;
    const char* group;
    TextItem item;
};

/// The fields of an entry that have a text, and the problems of those that cannot be styled.
struct EntryFields {
    /// The fields in the order of `wanted`, with the matches of `term` highlighted as suits each
    /// field; an empty term is not searched.
    EntryFields(const CifEntry& entry, std::span<const Field> wanted, const std::string& term = "");

    std::vector<EntryField> fields;
    std::vector<Problem> problems;
};
