#include <algorithm>
#include <limits>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

/// Whether a label is that of a carbon atom: C, and no second letter as in Cl.
bool is_carbon(const std::string& label) {
    return !label.empty() && label[0] == 'C' &&
           (label.size() == 1 || label[1] < 'a' || label[1] > 'z');
}

/// The columns of a loop, by rows that all of them have.
template <std::size_t columns>
struct Rows {
    Rows(BlockReader& block, const std::string_view (&tags)[columns]) {
        size = std::numeric_limits<std::size_t>::max();
        for (std::size_t i = 0; i < columns; ++i) {
            items[i] = block.item(tags[i]);
            size = std::min(size, items[i] ? items[i]->size() : 0);
        }
    }

    std::string text(std::size_t row, std::size_t column) const {
        return (*items[column])[row].text();
    }

    const CifItem* items[columns];
    std::size_t size;
};

/// The mean uncertainty of the C-C bonds.
std::optional<UncertainValue> average_sigma(BlockReader& block) {
    const Rows bonds(block, cif_tags::bond);
    double sum = 0;
    unsigned int count = 0;
    for (std::size_t row = 0; row < bonds.size; ++row) {
        if (!is_carbon(bonds.text(row, 0)) || !is_carbon(bonds.text(row, 1))) continue;
        const std::optional<UncertainValue> length = read_number(bonds.text(row, 2));
        if (!length || length->uncertainty == 0) continue;
        sum += length->uncertainty;
        ++count;
    }
    if (count == 0) return std::nullopt;
    return UncertainValue{sum / count, 0, 4};
}

}  // namespace

void read_measurements(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    ExperimentalInfo& experiment = *entry.experimental_info;
    // "NOT MEASURED" and the like is what the author had to say.
    const std::string temperature = block.first_text(cif_tags::temperature);
    experiment.temperature = read_number(temperature);
    if (!experiment.temperature) experiment.temperature_text = temperature;
    const std::optional<UncertainValue> r_factor = block.number(cif_tags::r_factor);
    if (r_factor) experiment.r_factor = 100 * r_factor->value;
    const std::optional<UncertainValue> sigma = average_sigma(block);
    if (sigma) experiment.average_sigma = *sigma;
}

void read_atoms(BlockReader& block, CrystalStructureDatabaseEntry& entry) {
    const Rows atoms(block, cif_tags::atom);
    for (std::size_t row = 0; row < atoms.size; ++row) {
        const auto x = read_number(atoms.text(row, 1));
        const auto y = read_number(atoms.text(row, 2));
        const auto z = read_number(atoms.text(row, 3));
        if (!x || !y || !z) continue;  // known to be there, but not where
        entry.crystal_info->molecules.atoms.push_back(
            {atoms.text(row, 0), x->value, y->value, z->value});
    }
}
