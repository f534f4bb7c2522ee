#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "entries/CifEntry.h"
#include "host/Cell.h"
#include "host/ReducedCell.h"
#include "tasks/Field.h"

/// What comparisons need of an entry, without the file that it is from.
struct EntryTexts {
    /// The texts are in step with `wanted`.
    EntryTexts(std::string file, const CifEntry& entry, std::span<const Field> wanted);

    std::string file;   ///< As the user named it.
    std::string block;  ///< The name of the data block.
    std::vector<FieldText> texts;

    /// By which entries find each other; empty or none where the entry does not tell.
    /// @{
    std::string identifier, formula, name;
    std::optional<ReducedCell> cell;
    /// @}

    /// What the cell of the crystal was measured as, and its centring.
    /// @{
    std::optional<Cell> measured_cell;
    char centring;
    /// @}
};

/// The standard uncertainties of the numbers in a field's text, where the text is computed from
/// what was measured: those of cell volume and reduced cell. None for other fields.
std::vector<double> derived_uncertainties(const EntryTexts& entry, const Field& field,
                                          const FieldText& text);
