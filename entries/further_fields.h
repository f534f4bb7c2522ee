#pragma once

#include <span>

#include "entries/BlockReader.h"

/// A field beyond the catalogue, which a CIF file may tell of an entry besides.
/// items_of() tells of its items.
struct FurtherField {
    const char* label;
    const char* source;      ///< The kind of its texts.
    const char* search;      ///< How it is searched,
    const char* comparison;  ///< and how it is compared.
};

std::span<const FurtherField> further_fields();

/// The group under which they are listed, behind those of the catalogue.
inline constexpr char further_group[] = "Further Details";

/// Adds a text for each of them that the block has.
void read_further_fields(BlockReader& block);
