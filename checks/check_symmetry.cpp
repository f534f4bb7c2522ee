#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>
#include <string_view>

#include "checks/CellShape.h"
#include "checks/CheckedEntry.h"
#include "checks/WrittenFormula.h"
#include "checks/in_decimals.h"
#include "checks/site_symmetry.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/space_group_symbol.h"

namespace {

constexpr std::string_view system_tags[] = {"_space_group_crystal_system",
                                            "_symmetry_cell_setting"};

const CrystalInfo& crystal(const CheckedEntry& entry) { return *entry.entry().entry->crystal_info; }

/// Whether items of the entry tell of different groups, which reading has warned of.
bool is_group_in_doubt(const CheckedEntry& entry) {
    const std::vector<Problem>& problems = entry.entry().problems;
    constexpr std::string_view codes[] = {"space-group-symbols-differ", "hall-symbol-differs",
                                          "operations-differ", "space-group-number-differs"};
    return std::any_of(problems.begin(), problems.end(), [&](const Problem& problem) {
        return std::find(std::begin(codes), std::end(codes), problem.code) != std::end(codes);
    });
}

/// Whether a cell of that system may have a group of the other; in older files trigonal groups are
/// called after their axes.
bool may_be_called(std::string_view system, const Spacegroup& group) {
    const std::string_view own = crystal_system_of(group.number);
    if (system == own) return true;
    if (own != "trigonal") return false;
    return system == "hexagonal" || (system == "rhombohedral" && group.symbol.starts_with('R'));
}

void check_system(CheckedEntry& entry) {
    constexpr std::string_view systems[] = {"triclinic",  "monoclinic", "orthorhombic",
                                            "tetragonal", "trigonal",   "rhombohedral",
                                            "hexagonal",  "cubic"};
    const Spacegroup& group = crystal(entry).spacegroup;
    for (const std::string_view tag : system_tags) {
        const CheckedEntry::Value written = entry.first(tag);
        if (!written) continue;
        const std::string system = in_lower_case(written.text);
        const bool is_known =
            std::find(std::begin(systems), std::end(systems), system) != std::end(systems);
        const std::string_view own = group.number ? crystal_system_of(group.number) : "";
        std::string expected = "one of the seven systems";
        if (!own.empty()) expected = std::string(own) + ", the system of " + group.symbol;
        if (!is_known) {
            CheckFinding& finding = entry.add("unknown-crystal-system", written, expected);
            // No two systems begin with the same four letters.
            const bool is_misspelt = !own.empty() && system.substr(0, 4) == own.substr(0, 4);
            if (is_misspelt && !is_group_in_doubt(entry)) {
                finding.repair = entry.replaced(written, std::string(own));
            }
        } else if (!own.empty() && !may_be_called(system, group)) {
            entry.add("crystal-system-mismatch", written, expected);
        }
    }
}

// What programs have computed is not exact.
constexpr double exact_degrees = 0.001;
constexpr double exact_part_of_edge = 1e-5;

bool are_equal(const UncertainValue& left, const UncertainValue& right) {
    const double allowed = std::max(
        {half_a_unit(left), half_a_unit(right), exact_part_of_edge * std::abs(left.value)});
    return std::abs(left.value - right.value) <= allowed * (1 + 1e-6);
}

bool is_angle(const UncertainValue& angle, double degrees) {
    return std::abs(angle.value - degrees) <= exact_degrees;
}

/// A cell that is compared with a shape.
class ShapedCell {
public:
    ShapedCell(const Cell& cell, const CellShape& shape)
        : edges_{cell.a, cell.b, cell.c},
          angles_{cell.alpha.degrees, cell.beta.degrees, cell.gamma.degrees},
          shape_(shape) {}

    bool has_angle(std::size_t i) const {
        if (shape_.angles_are_equal) {
            return std::abs(angles_[i].value - angles_[0].value) <=
                   std::max({exact_degrees, half_a_unit(angles_[0]), half_a_unit(angles_[i])});
        }
        return shape_.angles[i] == 0 || is_angle(angles_[i], shape_.angles[i]);
    }
    bool has_angles() const { return has_angle(0) && has_angle(1) && has_angle(2); }
    bool has_edge(std::size_t i) const {
        return static_cast<int>(i) >= shape_.equal_edges || are_equal(edges_[0], edges_[i]);
    }

    void check(CheckedEntry& entry, const std::string& whose) const;

private:
    UncertainValue edges_[3], angles_[3];
    const CellShape& shape_;
};

void ShapedCell::check(CheckedEntry& entry, const std::string& whose) const {
    for (std::size_t i = 0; i < 3; ++i) {
        const CheckedEntry::Value edge = entry.first(cif_tags::cell[i]);
        if (edge && !has_edge(i)) {
            entry.add("edges-against-symmetry", edge,
                      entry.first(cif_tags::cell[0]).text + " \xC3\x85 as a, " + whose);
        }
    }
    for (std::size_t i = 0; i < 3; ++i) {
        const CheckedEntry::Value angle = entry.first(cif_tags::cell[3 + i]);
        if (!angle) continue;
        if (!has_angle(i)) {
            std::string expected = shape_.angles_are_equal ? entry.first(cif_tags::cell[3]).text
                                                           : in_decimals(shape_.angles[i], 0);
            expected.append(" degrees, ").append(whose);
            entry.add("angle-against-symmetry", angle, expected);
        } else if (shape_.angles[i] != 0 && angles_[i].uncertainty > 0) {
            entry.add("fixed-angle-uncertain", angle,
                      in_decimals(shape_.angles[i], 0) + " without an uncertainty, " + whose);
        }
    }
}

/// A symbol such as "P 21" does not say which axis is the unique one, unless operations do.
const CellShape& asked_shape(const CheckedEntry& entry) {
    const CrystalInfo& info = crystal(entry);
    const CellShape& shape = shape_of(info.spacegroup);
    if (ShapedCell(*info.cell, shape).has_angles()) return shape;
    const std::string symbol = entry.first(cif_tags::symbol).text;
    const bool has_operations =
        entry.first(cif_tags::operations) || entry.first(cif_tags::hall_symbol);
    if (has_operations || !find_space_group(symbol, 0, 0).axis_is_open) return shape;
    for (const char axis : {'a', 'b', 'c'}) {
        const CellShape& other = monoclinic_shape(axis);
        if (ShapedCell(*info.cell, other).has_angles()) return other;
    }
    return shape;
}

void check_cell_shape(CheckedEntry& entry) {
    const CrystalInfo& info = crystal(entry);
    if (!info.cell || info.cell->volume() <= 0 || info.spacegroup.number == 0) return;
    if (is_group_in_doubt(entry)) return;
    const CellShape& shape = asked_shape(entry);
    ShapedCell(*info.cell, shape)
        .check(entry, "as " + info.spacegroup.symbol + " makes the cell " + shape.name);
}

bool has_partial_atoms(const CheckedEntry& entry) {
    for (const CheckedEntry::Value& value : entry.all("_atom_site_occupancy")) {
        const std::optional<UncertainValue> occupancy = read_number(value.text);
        if (!occupancy || occupancy->value < 1) return true;
    }
    return false;
}

/// The greatest common divisor of the numbers of atoms of each element in the cell; 0 where they
/// are not whole.
std::int64_t divisor_of_atoms(const ElementTotals& unit, double z) {
    constexpr double beyond_use = 1e9;
    std::int64_t divisor = 0;
    for (const double total : unit.total) {
        const double count = total * z;
        const double whole = std::round(count);
        if (count > beyond_use || std::abs(count - whole) > 1e-6) return 0;
        divisor = std::gcd(divisor, static_cast<std::int64_t>(whole));
    }
    return divisor;
}

void check_z(CheckedEntry& entry) {
    const CheckedEntry::Value written = entry.first(cif_tags::z);
    const CrystalInfo& info = crystal(entry);
    if (!written || !entry.number(cif_tags::z)) return;
    if (info.z <= 0 || info.z != std::round(info.z)) {
        entry.add("z-not-whole", written, "a whole number from 1 on");
        return;
    }
    // Known where the items agree which group it is.
    if (info.z_prime <= 0 || info.spacegroup.number == 0) return;
    if (entry.entry().block.has_any("_cell_modulation")) return;
    const WrittenFormula formula(entry.first("_chemical_formula_sum").text);
    if (!formula.can_be_counted()) return;
    const std::int64_t divisor = divisor_of_atoms(formula.totals(), info.z);
    const int operations = static_cast<int>(std::lround(info.z / info.z_prime));
    const int step = step_of_multiplicities(info.spacegroup.number, operations);
    if (divisor % step == 0 || has_partial_atoms(entry)) return;
    const std::int64_t of_unit = divisor / static_cast<std::int64_t>(info.z);
    const std::int64_t least =
        step / std::gcd<std::int64_t>(step, std::max<std::int64_t>(of_unit, 1));
    entry.add("z-against-positions", written,
              "a multiple of " + std::to_string(least) + ", as " + info.spacegroup.symbol +
                  " has each atom " + std::to_string(step) +
                  " times or a multiple of it in the cell");
}

}  // namespace

void check_symmetry(CheckedEntry& entry) {
    check_system(entry);
    check_cell_shape(entry);
    check_z(entry);
}
