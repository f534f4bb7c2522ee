#include <exception>
#include <gemmi/symmetry.hpp>
#include <stdexcept>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

using Entry = CrystalStructureDatabaseEntry;

// No group has more; gemmi's search for a group costs their square.
constexpr std::size_t most_operations = 192;
constexpr std::size_t longest_operation = 100;  // in characters

/// An operation such as "-x,y+1/2,z"; throws where it is none. The sums that gemmi makes of
/// long numbers would overflow.
gemmi::Op operation(const std::string& text) {
    std::size_t digits = 0;
    for (const char c : text) {
        digits = c >= '0' && c <= '9' ? digits + 1 : 0;
        if (digits > 2 || text.size() > longest_operation) {
            throw std::invalid_argument("no symmetry operation");
        }
    }
    return gemmi::parse_triplet(text);
}

// These two give no group where gemmi refuses the item, so that the next item is tried.

const gemmi::SpaceGroup* find_by_hall_symbol(const std::string& symbol) {
    if (symbol.empty()) return nullptr;
    try {
        return gemmi::find_spacegroup_by_ops(gemmi::symops_from_hall(symbol.c_str()));
    } catch (const std::exception&) {
        return nullptr;
    }
}

const gemmi::SpaceGroup* find_by_operations(BlockReader& block, const CifItem* item) {
    if (!item) return nullptr;
    if (item->size() > most_operations) {
        block.add_problem(*item, std::to_string(item->size()) + " operations, expected up to " +
                                     std::to_string(most_operations));
        return nullptr;
    }
    std::vector<gemmi::Op> operations;
    try {
        for (std::size_t row = 0; row < item->size(); ++row) {
            operations.push_back(operation((*item)[row].text()));
        }
        return gemmi::find_spacegroup_by_ops(gemmi::split_centering_vectors(operations));
    } catch (const std::exception&) {
        return nullptr;
    }
}

const gemmi::SpaceGroup* find_space_group(BlockReader& block, const Entry& entry) {
    const std::optional<Cell>& cell = entry.crystal_info->cell;
    const double alpha = cell ? cell->alpha.degrees.value : 0;
    const double gamma = cell ? cell->gamma.degrees.value : 0;
    const std::string symbol = block.first_text(cif_tags::symbol);
    const std::string hall_symbol = block.first_text(cif_tags::hall_symbol);
    const CifItem* const operations = block.item(cif_tags::operations[0]);
    const CifItem* const older_operations = block.item(cif_tags::operations[1]);
    const std::optional<UncertainValue> number =
        read_number(block.first_text(cif_tags::group_number));
    const gemmi::SpaceGroup* group = nullptr;
    // To gemmi some numbers are symbols too.
    if (!symbol.empty() && (symbol[0] < '0' || symbol[0] > '9')) {
        group = gemmi::find_spacegroup_by_name(symbol, alpha, gamma);
    }
    if (!group) group = find_by_hall_symbol(hall_symbol);
    if (!group) group = find_by_operations(block, operations ? operations : older_operations);
    if (!group && number && number->value >= 1 && number->value <= 230) {
        group = gemmi::find_spacegroup_by_number(static_cast<int>(number->value));
    }
    return group;
}

}  // namespace

void read_space_group(BlockReader& block, Entry& entry) {
    CrystalInfo& info = *entry.crystal_info;
    const gemmi::SpaceGroup* const group = find_space_group(block, entry);
    const BlockReader::Value symbol = block.first_value(cif_tags::symbol);
    if (group) {
        info.spacegroup = {group->hm, group->number, group->centring_type()};
    } else if (symbol) {
        info.spacegroup.symbol = one_line(symbol.text);
        block.add_problem(symbol, "unknown space group");
    }
    if (info.cell && group) {
        info.reduced_cell = ReducedCell::of(*info.cell, info.spacegroup.centring);
    }
    const std::optional<UncertainValue> z = block.number(just(cif_tags::z));
    if (!z) return;
    info.z = z->value;
    if (group) info.z_prime = z->value / group->operations().order();
}
