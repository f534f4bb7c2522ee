#include "entries/BlockReader.h"
#include "entries/cif_tags.h"

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
        block.add_block_problem(*some.item, "the cell has no " + std::string(lacking));
    }
    if (!complete) return;
    const Cell cell{parameters[0],   parameters[1],   parameters[2],
                    {parameters[3]}, {parameters[4]}, {parameters[5]}};
    entry.crystal_info->cell = cell;
    if (cell.volume() > 0) return;
    block.add_block_problem(*block.item(cif_tags::cell[0]), "no cell has these edges and angles");
}
