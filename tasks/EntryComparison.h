#pragma once

#include <optional>
#include <span>
#include <vector>

#include "entries/CifEntry.h"
#include "tasks/Field.h"
#include "text/TextItem.h"

/// One field of two entries, with what they have in common highlighted.
struct ComparedField {
    const char* label;
    std::optional<TextItem> left, right;  ///< None where that side has no text.
    bool same;  ///< The texts are equal, or each matches the other in the field's own sense.
};

/// The fields of two entries that have a text on either side, and the problems of those that cannot
/// be compared.
struct EntryComparison {
    EntryComparison(const CifEntry& left, const CifEntry& right, std::span<const Field> wanted,
                    const SearchSettings& settings);

    std::vector<ComparedField> fields;
    std::vector<Problem> problems;
    bool same = true;  ///< All fields are.
};
