#include <cmath>
#include <sstream>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/quantities.h"
#include "fields/LMRFieldNames.h"

namespace {

/// The file's own volume, with its uncertainty; a doubt where the cell has another.
void read_volume(BlockReader& block, const std::optional<Cell>& cell) {
    const BlockReader::Value written = block.first_value(just(cif_tags::volume));
    const std::optional<UncertainValue> volume = block.number(just(cif_tags::volume));
    if (!volume) return;
    block.add_text(
        {LMRFieldNames::text(LMRFieldNames::cell_volume), "plain", one_line(written.text)});
    if (!cell || cell->volume() <= 0) return;
    if (std::abs(volume->value - cell->volume()) <= volume_tolerance(*cell, *volume)) return;
    std::ostringstream calculated;
    UncertainValue{cell->volume(), 0, volume->decimals}.print(calculated);
    block
        .add_unexpected(written, "volume-mismatch",
                        calculated.str() + " as edges and angles make it")
        .level = Problem::Level::warning;
}

}  // namespace

void read_cell(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    UncertainValue parameters[6];
    std::string_view lacking;
    bool complete = true;
    for (std::size_t i = 0; i < std::size(parameters); ++i) {
        const Tags tag = just(cif_tags::cell[i]);
        if (lacking.empty() && !block.first_value(tag)) lacking = cif_tags::cell[i];
        const std::optional<UncertainValue> parameter = block.number(tag);
        complete = complete && parameter;
        if (parameter) parameters[i] = *parameter;
    }
    const BlockReader::Value some = block.first_value(cif_tags::cell);
    if (some && !lacking.empty()) {
        block.add_block_problem(*some.item, "cell-incomplete",
                                "the cell has no " + std::string(lacking));
    }
    if (!complete) return read_volume(block, std::nullopt);
    const Cell cell{parameters[0],   parameters[1],   parameters[2],
                    {parameters[3]}, {parameters[4]}, {parameters[5]}};
    entry.crystal_info->cell = cell;
    read_volume(block, cell);
    if (cell.volume() > 0) return;
    block.add_block_problem(*block.item(cif_tags::cell[0]), "no-such-cell",
                            "no cell has these edges and angles");
}
