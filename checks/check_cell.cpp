#include <algorithm>
#include <cmath>
#include <gemmi/elem.hpp>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

#include "checks/CheckedEntry.h"
#include "checks/ElementTotals.h"
#include "checks/WrittenFormula.h"
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

/// The volumes of the cell in Å³, as its parameters make it and as the file gives it. Where they
/// differ reading has warned of it.
std::vector<double> volumes_of_cell(const CheckedEntry& entry) {
    std::vector<double> volumes;
    const std::optional<Cell>& cell = entry.entry().entry->crystal_info->cell;
    if (cell && cell->volume() > 0) volumes.push_back(cell->volume());
    const std::optional<UncertainValue> written = entry.number(cif_tags::volume);
    if (written && written->value > 0) volumes.push_back(written->value);
    return volumes;
}

bool are_near(const UncertainValue& density, double calculated) {
    const double allowed = half_a_unit(density) + change_of_constants * calculated;
    return std::abs(density.value - calculated) <= std::max(allowed, 3 * density.uncertainty);
}

void check_density(CheckedEntry& entry, double z, const std::optional<ElementTotals>& unit) {
    const std::optional<UncertainValue> density = entry.number(density_tag);
    const std::vector<double> volumes = volumes_of_cell(entry);
    // Where the weight does not fit the formula, that is another fault.
    std::vector<double> weights;
    const std::optional<UncertainValue> written = entry.number(weight_tag);
    if (written && written->value > 0) weights.push_back(written->value);
    if (unit) weights.push_back(unit->weight());
    if (!density || volumes.empty() || weights.empty()) return;
    for (const double volume : volumes) {
        for (const double weight : weights) {
            if (are_near(*density, z * density_of_one * weight / volume)) return;
        }
    }
    const double calculated = z * density_of_one * weights[0] / volumes[0];
    entry.add("density-mismatch", entry.first(density_tag),
              in_decimals(calculated, std::clamp(density->decimals, 2, 4)) + " g/cm\xC2\xB3, as " +
                  in_decimals(z, 0) + " formula units of " + in_decimals(weights[0], 2) +
                  " u make in " + in_decimals(volumes[0], 1) + " \xC3\x85\xC2\xB3");
}

/// The electrons of a formula unit, how far rounding may have moved them, and by how many less or
/// more its atoms may scatter near their edges of absorption.
struct Electrons {
    double number = 0, rounding = 0, less = 0, more = 0;
};

Electrons electrons_of(const ElementTotals& unit) {
    constexpr struct {
        int last_number;  // of the elements that it goes for
        double less, more;
    } dispersions[] = {{10, 0.02, 0.1}, {18, 0.5, 0.5}, {119, 14, 0.6}};
    Electrons sum;
    for (std::size_t i = 0; i < unit.total.size(); ++i) {
        if (unit.total[i] <= 0) continue;
        const int number = gemmi::Element(static_cast<gemmi::El>(i)).atomic_number();
        const auto* const row =
            std::find_if(std::begin(dispersions), std::end(dispersions),
                         [number](const auto& some) { return number <= some.last_number; });
        sum.number += number * unit.total[i];
        sum.rounding += number * unit.rounding[i];
        sum.less += row->less * unit.total[i];
        sum.more += row->more * unit.total[i];
    }
    return sum;
}

void check_f_000(CheckedEntry& entry, double z, const ElementTotals& unit) {
    const std::optional<UncertainValue> f_000 = entry.number(f_000_tag);
    if (!f_000 || f_000->value == 0 || is_of_particles(entry)) return;
    const Electrons electrons = electrons_of(unit);
    const double allowed = 0.5 + z * electrons.rounding;
    const double difference = f_000->value - z * electrons.number;
    if (std::abs(difference) <= allowed) return;
    // Programs that take dispersion into account write decimals.
    const bool has_dispersion = f_000->value != std::round(f_000->value);
    if (has_dispersion && difference >= -allowed - z * electrons.less &&
        difference <= allowed + z * electrons.more) {
        return;
    }
    entry.add("f000-mismatch", entry.first(f_000_tag),
              in_decimals(z * electrons.number, 0) + ", the electrons of " + in_decimals(z, 0) +
                  " formula units of " + entry.first(formula_tag).text);
}

}  // namespace

void check_cell(CheckedEntry& entry) {
    const double z = entry.entry().entry->crystal_info->z;
    if (!is_whole_and_positive(z)) return;
    const WrittenFormula formula(entry.first(formula_tag).text);
    std::optional<ElementTotals> unit;
    if (formula.can_be_counted()) unit = formula.totals();
    check_density(entry, z, unit);
    if (unit) check_f_000(entry, z, *unit);
}
