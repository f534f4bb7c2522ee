#include "tasks/EntryTexts.h"

#include <utility>

#include "entries/cell_uncertainties.h"
#include "entries/cif_tags.h"

namespace {

/// The number that the database has given the entry; empty where it has none, and its block's name
/// stands for it.
std::string number_of(const CifEntry& entry) {
    const CifItem* const number = entry.block.find(cif_tags::identifier);
    return number && number->has_text() ? entry.entry->identifier : "";
}

}  // namespace

EntryTexts::EntryTexts(std::string file_name, const CifEntry& entry, std::span<const Field> wanted)
    : file(std::move(file_name)),
      block(entry.block.name()),
      identifier(number_of(entry)),
      formula(entry.entry->chemical_info->formula),
      name(entry.entry->chemical_info->compound_name),
      cell(entry.entry->crystal_info->reduced_cell),
      measured_cell(entry.entry->crystal_info->cell),
      centring(entry.entry->crystal_info->spacegroup.centring) {
    texts.reserve(wanted.size());
    for (const Field& field : wanted) texts.push_back(text_of(entry, field));
}

std::vector<double> derived_uncertainties(const EntryTexts& entry, const Field& field,
                                          const FieldText& text) {
    if (!field.id || !text.is_of_records || !entry.measured_cell) return {};
    const Cell& cell = *entry.measured_cell;
    switch (*field.id) {
        case LMRFieldNames::cell_volume:
            return {volume_uncertainty(cell)};
        case LMRFieldNames::reduced_cell_volume:
            return {volume_uncertainty(cell) * entry.cell.value().volume / cell.volume()};
        case LMRFieldNames::reduced_cell_lengths:
        case LMRFieldNames::reduced_cell_angles: {
            const auto all = reduced_cell_uncertainties(cell, entry.centring);
            const auto* const first =
                all.data() + (*field.id == LMRFieldNames::reduced_cell_lengths ? 0 : 3);
            return {first, first + 3};
        }
        default:
            return {};
    }
}
