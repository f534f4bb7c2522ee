#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "entries/FieldForm.h"
#include "entries/FieldPart.h"
#include "fields/LMRFieldNames.h"

/// Which items of a CIF file hold a field, and how its text is made of what they say.
struct FieldItems {
    std::string_view label;            ///< Of the field.
    std::span<const FieldPart> parts;  ///< Those that items hold.
    FieldForm form;                    ///< Of the parts.
    /// Why the field cannot be written, as a clause; null: it can.
    const char* refusal;
};

/// Those of a field of the catalogue. Throws what LMRFieldNames::text() throws.
const FieldItems& items_of(LMRFieldNames::TextID field);
/// Those of any field, or null where there is none of that label.
const FieldItems* items_of(std::string_view label);

/// The texts of the parts of a field as the block has them, and that which they make.
/// @{
FieldForm::Parts parts_of(BlockReader& block, const FieldItems& field);
std::string text_of(BlockReader& block, const FieldItems& field);
/// @}

/// Where the parts of a literature reference stand among those of its field. A reference that lacks
/// one of the first four is in CIF text, journal and all.
enum ReferencePart : std::size_t {
    reference_journal,
    reference_volume,
    reference_year,
    first_page_of_reference,
    last_page_of_reference,
    coded_journal_of_reference,
};
