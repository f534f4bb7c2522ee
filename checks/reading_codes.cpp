#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
    {"not-a-number", Level::error, "not a number",
     "The value of an item that holds a number is none: it has a unit or a word behind it, a comma "
     "for the point, or a number beyond use. A standard uncertainty in brackets belongs to a "
     "number: '10.234(5)'.",
     "_cell_measurement_temperature 100(2)\n_cell_formula_units_Z four\n",
     "_cell_measurement_temperature 100(2)\n_cell_formula_units_Z 4\n"},
    {"not-a-date", Level::error, "not a date",
     "The day when the file was made cannot be read. Day and month that only their order could "
     "tell apart, as in '9/7/2004', are no date either.",
     "_audit_creation_date 9/7/2004\n", "_audit_creation_date 9-Jul-2004\n"},
    {"cell-incomplete", Level::error, "the cell lacks an edge or an angle",
     "Some of the six parameters of the cell are given and others are not, so that there is no "
     "cell to show or to search.",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n"},
    {"no-such-cell", Level::error, "no cell has these edges and angles",
     "With these angles three edges do not span a body: each angle is less than the sum of the "
     "other two, all three add up to less than 360 degrees, and edges are longer than nothing.",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 190\n",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 170\n"},
    {"volume-mismatch", Level::warning, "the volume is not that of the cell",
     "The volume that is given differs from the one that edges and angles make by more than three "
     "standard uncertainties of the difference and what rounding allows.",
     "_cell_length_a 5.000(1)\n_cell_length_b 6.000(1)\n_cell_length_c 7.000(1)\n"
     "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n_cell_volume 201.0(1)\n",
     "_cell_length_a 5.000(1)\n_cell_length_b 6.000(1)\n_cell_length_c 7.000(1)\n"
     "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n_cell_volume 210.1(1)\n"},
    {"not-in-kelvin", Level::warning, "not a temperature in K",
     "A melting point below 1 K is that of no substance: degrees Celsius were meant.",
     "_chemical_melting_point -20\n", "_chemical_melting_point 253\n"},
    {"r-factor-above-1", Level::warning, "the R factor is above 1",
     "R factors are given as fractions, not as percentages.", "_refine_ls_R_factor_gt 4.5\n",
     "_refine_ls_R_factor_gt 0.045\n"},
    {"unknown-space-group", Level::error, "the space group is not known",
     "The symbol is that of none of the 230 groups in any setting, and neither Hall symbol, "
     "operations nor number tell the group.",
     "_symmetry_space_group_name_H-M 'P 21/q'\n", "_symmetry_space_group_name_H-M 'P 21/n'\n"},
    {"space-groups-differ", Level::warning, "items tell of different space groups",
     "The group that the first of symbol, Hall symbol, operations and number tells is not the one "
     "that another tells, or not its setting.",
     "_symmetry_space_group_name_H-M 'P 21/c'\n_symmetry_Int_Tables_number 15\n",
     "_symmetry_space_group_name_H-M 'P 21/c'\n_symmetry_Int_Tables_number 14\n"},
    {"too-many-operations", Level::error, "more symmetry operations than any group has",
     "No group has as many operations in one cell. They are not compared.", nullptr, nullptr},
    {"styles-cross", Level::error, "the styles of the name cross",
     "A style ends within another that began after it, so that the name cannot be shown.", nullptr,
     nullptr},
};

}  // namespace

std::span<const CheckCode> reading_codes() { return codes; }
