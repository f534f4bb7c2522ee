#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

#include "checks/CheckedEntry.h"
#include "checks/FormulaUnit.h"
#include "checks/in_decimals.h"
#include "checks/radiation.h"
#include "entries/cif_tags.h"

namespace {

constexpr std::string_view density_tag = "_exptl_crystal_density_diffrn";
constexpr std::string_view f_000_tag = "_exptl_crystal_f_000";
constexpr std::string_view weight_tag = "_chemical_formula_weight";
constexpr std::string_view formula_tag = "_chemical_formula_sum";

// 1 u in 1 Å³ is as many g/cm³: the atomic mass constant, 1.660 539 07 × 10^-24 g, times 10^24.
constexpr double density_of_one = 1.66053907;
// Atomic weights and the constant have changed by less than this part since tables were printed.
constexpr double change_of_constants = 0.002;

bool is_whole_and_positive(double z) { return z > 0 && z == std::round(z); }

/// The volume of the cell in Å³: as its parameters make it, else as the file gives it.
std::optional<double> volume_of_cell(const CheckedEntry& entry) {
    const std::optional<Cell>& cell = entry.entry().entry->crystal_info->cell;
    if (cell && cell->volume() > 0) return cell->volume();
    const std::optional<UncertainValue> written = entry.number(cif_tags::volume);
    if (!written || written->value <= 0) return std::nullopt;
    return written->value;
}

/// Whether a weight, in u, makes the density that was given, in g/cm³.
bool makes(const UncertainValue& density, double calculated) {
    const double allowed = half_a_unit(density) + change_of_constants * calculated;
    return std::abs(density.value - calculated) <= std::max(allowed, 3 * density.uncertainty);
}

void check_density(CheckedEntry& entry, double z, const std::optional<FormulaUnit>& unit) {
    const std::optional<UncertainValue> density = entry.number(density_tag);
    const std::optional<double> volume = volume_of_cell(entry);
    const std::optional<UncertainValue> weight = entry.number(weight_tag);
    if (!density || !volume) return;
    const bool has_weight = weight && weight->value > 0;
    if (!has_weight && !unit) return;
    const double of_one = z * density_of_one / *volume;
    const double calculated = of_one * (has_weight ? weight->value : unit->weight);
    if (makes(*density, calculated)) return;
    // Where it is the weight that does not fit the formula, that is another fault.
    if (unit && makes(*density, of_one * unit->weight)) return;
    entry.add("density-mismatch", entry.first(density_tag),
              in_decimals(calculated, std::clamp(density->decimals, 2, 4)) + " g/cm\xC2\xB3, as " +
                  in_decimals(z, 0) + " formula units of " +
                  in_decimals(has_weight ? weight->value : unit->weight, 2) + " u make in " +
                  in_decimals(*volume, 1) + " \xC3\x85\xC2\xB3");
}

/// How much less than its electrons the atoms of a formula unit may scatter near their edges of
/// absorption, and how much more.
struct Dispersion {
    double less = 0, more = 0;
};

Dispersion dispersion_of(const FormulaUnit& unit) {
    constexpr struct {
        int last_number;  // of the elements that it goes for
        double less, more;
    } rows[] = {{10, 0.02, 0.1}, {18, 0.5, 0.5}, {118, 14, 0.6}};
    Dispersion sum;
    for (const FormulaUnit::Atoms& atoms : unit.atoms) {
        for (const auto& row : rows) {
            if (atoms.number > row.last_number) continue;
            sum.less += row.less * atoms.count;
            sum.more += row.more * atoms.count;
            break;
        }
    }
    return sum;
}

void check_f_000(CheckedEntry& entry, double z, const FormulaUnit& unit) {
    const std::optional<UncertainValue> f_000 = entry.number(f_000_tag);
    if (!f_000 || f_000->value == 0 || is_of_particles(entry)) return;
    const double electrons = z * unit.electrons();
    const double allowed = 0.5 + z * unit.doubt_of_electrons();
    const double difference = f_000->value - electrons;
    if (std::abs(difference) <= allowed) return;
    // Programs that take dispersion into account write decimals.
    const Dispersion dispersion = dispersion_of(unit);
    const bool has_dispersion = f_000->value != std::round(f_000->value);
    if (has_dispersion && difference >= -allowed - z * dispersion.less &&
        difference <= allowed + z * dispersion.more) {
        return;
    }
    entry.add("f000-mismatch", entry.first(f_000_tag),
              in_decimals(electrons, 0) + ", the electrons of " + in_decimals(z, 0) +
                  " formula units of " + entry.first(formula_tag).text);
}

}  // namespace

void check_cell(CheckedEntry& entry) {
    const double z = entry.entry().entry->crystal_info->z;
    if (!is_whole_and_positive(z)) return;
    const std::optional<FormulaUnit> unit = read_formula_unit(entry.first(formula_tag).text);
    check_density(entry, z, unit);
    if (unit) check_f_000(entry, z, *unit);
}
