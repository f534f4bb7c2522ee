#include <gmock/gmock.h>

#include <gemmi/symmetry.hpp>
#include <numeric>

#include "checks/check_entries.h"
#include "checks/radiation.h"
#include "checks/site_symmetry.h"

namespace {

/// The codes of cell, symmetry and measurement that items raise, each with its line, from 1.
std::string codes_with_lines(const std::string& items) {
    const std::string cif = "data_x\n" + items;
    std::string codes;
    for (const CheckFinding& finding : check_entries(EntryReader(cif))) {
        if (!codes.empty()) codes += ' ';
        codes += finding.code->code;
        codes += ':' + std::to_string(finding.problem.line - 1);
    }
    return codes;
}

std::string cell(const std::string& symbol, const std::string (&parameters)[6]) {
    const char* const tags[] = {"length_a",    "length_b",   "length_c",
                                "angle_alpha", "angle_beta", "angle_gamma"};
    std::string items = "_symmetry_space_group_name_H-M '" + symbol + "'\n";
    for (std::size_t i = 0; i < 6; ++i)
        items += std::string("_cell_") + tags[i] + ' ' + parameters[i] + '\n';
    return items;
}

/// The greatest common divisor of the multiplicities, by counting what leaves each point of a grid
/// in place on which each position with a symmetry of its own has points.
int counted_step(const gemmi::SpaceGroup& group) {
    constexpr int grid = gemmi::Op::DEN;
    const std::vector<gemmi::Op> operations = group.operations().all_ops_sorted();
    int orders = 1;
    for (int point = 0; point < grid * grid * grid; ++point) {
        const int xyz[] = {point / grid / grid, point / grid % grid, point % grid};
        const auto is_special = [](int part) { return part % 3 == 0 || part % 8 == 0; };
        if (!is_special(xyz[0]) || !is_special(xyz[1])) continue;
        const auto stays = [&](const gemmi::Op& operation) {
            for (std::size_t i = 0; i < 3; ++i) {
                int sum = operation.tran[i] - xyz[i];
                for (std::size_t j = 0; j < 3; ++j) sum += operation.rot[i][j] / grid * xyz[j];
                if (sum % grid != 0) return false;
            }
            return true;
        };
        const auto order = std::count_if(operations.begin(), operations.end(), stays);
        orders = std::lcm(orders, static_cast<int>(order));
    }
    return static_cast<int>(operations.size()) / orders;
}

}  // namespace

TEST(CheckCell, ComparesTheCellWithItsGroup) {
    const struct {
        const char* symbol;
        std::string parameters[6];
        const char* codes;
    } cases[] = {
        {"P 1 21/c 1", {"7", "8", "9", "90", "98.5(2)", "90.00"}, ""},
        {"P 1 21/c 1", {"7", "8", "9", "90.01", "98.5", "90.0005"}, "angle-against-symmetry:5"},
        {"P 1 1 21/b", {"7", "8", "9", "90", "90", "98.5"}, ""},
        {"P 1 1 21/b", {"7", "8", "9", "90", "98.5", "90"}, "angle-against-symmetry:6"},
        {"P 21", {"7", "8", "9", "98.5", "90", "90"}, ""},  // which axis is not said
        {"P 21", {"7", "8", "9", "98.5", "97", "90"}, "angle-against-symmetry:5"},
        {"P n n m",
         {"7", "8", "9", "90", "90.1(2)", "90.0(2)"},
         "angle-against-symmetry:6 fixed-angle-uncertain:7"},
        {"I -4", {"7.1", "7.1", "9", "90", "90", "90"}, ""},
        {"I -4", {"7.1", "7.14", "9", "90", "90", "90"}, ""},
        {"I -4", {"7.10", "7.14", "9", "90", "90", "90"}, "edges-against-symmetry:3"},
        {"P a -3", {"7.1(2)", "7.1(1)", "7.2(2)", "90", "90", "90"}, "edges-against-symmetry:4"},
        {"P -3 m 1", {"7", "7", "9", "90", "90", "120"}, ""},
        {"P 63 m c", {"7", "7", "9", "90", "90", "119.9"}, "angle-against-symmetry:7"},
        {"R -3", {"7", "7", "9", "90", "90", "120"}, ""},
        {"R -3", {"7", "7", "7", "85.2(1)", "85.2(1)", "85.2(1)"}, ""},
        {"R -3 :R", {"7", "7", "7", "85.2", "85.2", "86.2"}, "angle-against-symmetry:7"},
        {"R -3 :H",
         {"7", "7", "7", "85.2", "85.2", "120"},
         "angle-against-symmetry:5 angle-against-symmetry:6"},
        {"P -1", {"7", "7", "7", "90.0(3)", "90.0(3)", "90.0(3)"}, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.symbol << ' ' << testing::PrintToString(c.parameters));
        EXPECT_EQ(codes_with_lines(cell(c.symbol, c.parameters)), c.codes);
    }
    // Of items that disagree it is not known which the cell is to follow.
    EXPECT_EQ(codes_with_lines(cell("P 21/c", {"7", "8", "9", "98", "91", "92"}) +
                               "_symmetry_Int_Tables_number 2\n"),
              "space-group-number-differs:8");
}

TEST(CheckCell, ComparesContentsWithinTheRoundingOfEachNumber) {
    const std::string urea = "_cell_volume 145.1\n_chemical_formula_sum 'C H4 N2 O'\n";
    const std::pair<std::string, const char*> cases[] = {
        {"_cell_formula_units_Z 2\n_exptl_crystal_density_diffrn 1.37\n", ""},
        {"_cell_formula_units_Z 2\n_exptl_crystal_density_diffrn 1.36\n", "density-mismatch:4"},
        // A weight that is not that of the formula is another fault.
        {"_cell_formula_units_Z 2\n_chemical_formula_weight 60.06\n"
         "_exptl_crystal_density_diffrn 1.375\n",
         ""},
        {"_cell_formula_units_Z 2\n_chemical_formula_weight 120.12\n"
         "_exptl_crystal_density_diffrn 1.375\n",
         "sum-weight-differ:4"},
        {"_cell_formula_units_Z 2\n_exptl_crystal_F_000 64.0\n", ""},
        {"_cell_formula_units_Z 2\n_exptl_crystal_F_000 63\n", "f000-mismatch:4"},
        {"_cell_formula_units_Z 2\n_exptl_crystal_F_000 20.1\n_diffrn_radiation_probe neutron\n",
         ""},
        {"_cell_formula_units_Z 0\n", "z-not-whole:3"},
        {"_cell_formula_units_Z 2\n_symmetry_space_group_name_H-M 'P 21 21 21'\n",
         "z-against-positions:3"},
        {"_cell_formula_units_Z 2\n_symmetry_space_group_name_H-M 'P 21 21 21'\n"
         "loop_\n_atom_site_label\n_atom_site_occupancy\nC1 0.5\n",
         ""},
        {"_cell_formula_units_Z 2\n_symmetry_space_group_name_H-M 'P 21 21 2'\n", ""},
    };
    for (const auto& [items, codes] : cases)
        EXPECT_EQ(codes_with_lines(urea + items), codes) << items;
    EXPECT_EQ(codes_with_lines("_chemical_formula_sum 'Fe0.95 O'\n_cell_formula_units_Z 4\n"
                               "_exptl_crystal_F_000 131\n"),
              "");
    EXPECT_EQ(codes_with_lines("_chemical_formula_sum 'C2 I2'\n_cell_formula_units_Z 4\n"
                               "_exptl_crystal_F_000 467.8\n"),
              "");  // with dispersion
}

TEST(CheckCell, KnowsTheMultiplicitiesOfAllGroups) {
    for (const gemmi::SpaceGroup& group : gemmi::spacegroup_tables::main) {
        if (!group.is_reference_setting()) continue;
        const int operations = group.operations().order();
        EXPECT_EQ(step_of_multiplicities(group.number, operations), counted_step(group))
            << group.hm;
    }
}

TEST(CheckMeasurement, KnowsTheSpellingsOfRadiations) {
    const std::pair<const char*, const char*> cases[] = {
        {"MoK\\a", "mo"},
        {"'Mo K\\a'", "mo"},
        {"Mo-K\\a~1~", "mo"},
        {"CuK\\b", "cu"},
        {"MOKA", "mo"},
        {"graphite CuKalpha", "cu"},
        {"Ag K\xCE\xB1", "ag"},
        {"W L\\a", "w"},
        {"synchrotron", ""},
        {"X-ray", ""},
        {"MoKyoto", ""},
        {"Mo", ""},
        {"", ""},
        {"in Karlsruhe", "in"},
    };
    for (const auto& [text, element] : cases) {
        const XrayLines* const lines = lines_of(text);
        EXPECT_STREQ(lines ? lines->element : "", element) << text;
    }
}

TEST(CheckMeasurement, TellsWhatCannotBe) {
    const std::pair<const char*, const char*> cases[] = {
        {"_diffrn_radiation_wavelength 0.71\n", ""},
        {"_diffrn_radiation_wavelength 71.073\n", "unknown-wavelength:1"},
        {"_diffrn_radiation_wavelength 0.6889\n_diffrn_radiation_type SNBL\n", ""},
        {"_diffrn_radiation_wavelength 0.6889\n_diffrn_radiation_source 'sealed tube'\n",
         "unknown-wavelength:1"},
        {"_diffrn_radiation_wavelength 0.6889\n_diffrn_radiation_type MoK\\a\n"
         "_diffrn_radiation_source synchrotron\n",
         "wavelength-of-other-radiation:1"},
        {"_diffrn_radiation_type CuK\\a\nloop_\n_diffrn_radiation_wavelength_id\n"
         "_diffrn_radiation_wavelength_value\n1 1.54056\n2 1.54439\n3 1.64439\n",
         "wavelength-of-other-radiation:7"},
        {"_cell_measurement_temperature 20(2)\n_diffrn_ambient_temperature 293(2)\n",
         "temperature-in-celsius:1"},
        {"_cell_measurement_temperature 100(2)\n_diffrn_ambient_temperature 105(2)\n", ""},
        {"_cell_measurement_temperature 100(2)\n_diffrn_ambient_temperature 120\n",
         "cell-temperature-differs:1"},
        {"_diffrn_ambient_temperature '20(2)\\%C'\n", "temperature-in-celsius:1"},
        {"_diffrn_ambient_temperature 'not measured, Cell 3'\n", "temperature-unclear:1"},
        {"_chemical_melting_point 'decomposes above 473'\n_diffrn_ambient_temperature 293\n", ""},
        {"_chemical_melting_point 343(2)\n_diffrn_ambient_temperature 345\n", ""},
        {"_chemical_melting_point '200 (Crystals)'\n_diffrn_ambient_temperature 100\n", ""},
        {"_chemical_melting_point '343 K (70 C)'\n", ""},
        {"_chemical_melting_point 70-72^o^C\n", "melting-point-in-celsius:1"},
        {"_exptl_crystal_size_max 0.10\n_exptl_crystal_size_min 0.12\n", "crystal-size-reversed:2"},
        {"_diffrn_reflns_number ?\n_reflns_number_total 12\n_reflns_number_gt .\n", ""},
        {"_pd_calc_method x\n_diffrn_reflns_number 1\n_reflns_number_total 12\n", ""},
        {"_refine_ls_structure_factor_coef Fsqd\n_refine_ls_R_factor_gt 0.05\n"
         "_refine_ls_wR_factor_ref 0.05\n",
         ""},
        {"_refine_ls_goodness_of_fit_ref 0\n", "goodness-of-fit-unlikely:1"},
    };
    for (const auto& [items, codes] : cases) EXPECT_EQ(codes_with_lines(items), codes) << items;
}
