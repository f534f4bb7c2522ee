#pragma once

#include "fields/LMRFieldNames.h"
#include "tasks/SearchKind.h"
#include "tasks/Source.h"

/// How a field of the catalogue is styled and searched; its text is what FieldTextSupplier gives.
struct Field {
    LMRFieldNames::TextID id;
    const Source* source;
    const SearchKind* search;
};

/// Throws what LMRFieldNames::text() throws.
Field field_of(LMRFieldNames::TextID id);

/// The group of a field, or "Other" where the catalogue has none.
const char* group_of(LMRFieldNames::TextID id);
