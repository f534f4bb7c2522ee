#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
    {"unknown-crystal-system", Level::warning, "there is no such crystal system",
     "It is one of triclinic, monoclinic, orthorhombic, tetragonal, trigonal, hexagonal and cubic; "
     "in older files rhombohedral, too. Case does not count.",
     "_symmetry_cell_setting orthorombic\n", "_symmetry_cell_setting Orthorhombic\n"},
    {"crystal-system-mismatch", Level::warning, "the crystal system is not that of the space group",
     "The system is compared with that of the group that the entry's symbol tells. Trigonal groups "
     "may be called hexagonal, and those with rhombohedral lattices rhombohedral, as older files "
     "call them after their axes.",
     "_symmetry_cell_setting orthorhombic\n_symmetry_space_group_name_H-M 'P 1 21/c 1'\n",
     "_symmetry_cell_setting hexagonal\n_symmetry_space_group_name_H-M 'P -3 m 1'\n"},
    {"edges-against-symmetry", Level::warning, "edges differ that symmetry makes equal",
     "Tetragonal cells and those of hexagonal axes have a = b, cubic ones and those of "
     "rhombohedral axes a = b = c, in all digits: a cell that was refined without these "
     "constraints may be of a lower symmetry. Half a unit of the last place, as far as the "
     "shorter number goes, and 1 part in 100,000 are allowed.",
     "_symmetry_space_group_name_H-M 'I -4'\n_cell_length_a 10.123(2)\n_cell_length_b 10.125(2)\n"
     "_cell_length_c 7.5\n_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n",
     "_symmetry_space_group_name_H-M 'I -4'\n_cell_length_a 10.123(2)\n_cell_length_b 10.12\n"
     "_cell_length_c 7.5\n_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n"},
    {"angle-against-symmetry", Level::warning, "an angle is not what symmetry makes it",
     "The angles are compared with those that the space group asks for in its setting: 90 degrees "
     "in all systems but the triclinic, with one free angle in the monoclinic, which the unique "
     "axis names; 120 degrees between hexagonal axes; three equal ones between rhombohedral axes. "
     "0.001 degrees are allowed. A symbol such as 'P 21', without operations beside it, may have "
     "any unique axis.",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_cell_length_a 7.1\n_cell_length_b 8.2\n"
     "_cell_length_c 9.3\n_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 98.5\n",
     "_symmetry_space_group_name_H-M 'P 1 1 21/b'\n_cell_length_a 7.1\n_cell_length_b 8.2\n"
     "_cell_length_c 9.3\n_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 98.5\n"},
    {"fixed-angle-uncertain", Level::note, "an angle that symmetry fixes has an uncertainty",
     "What symmetry fixes is exact. An uncertainty says that the angle was refined, against the "
     "space group, or taken from the raw cell of the measurement.",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_cell_length_a 7.1\n_cell_length_b 8.2\n"
     "_cell_length_c 9.3\n_cell_angle_alpha 90.00(3)\n_cell_angle_beta 98.5(3)\n"
     "_cell_angle_gamma 90\n",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_cell_length_a 7.1\n_cell_length_b 8.2\n"
     "_cell_length_c 9.3\n_cell_angle_alpha 90.00\n_cell_angle_beta 90.00(3)\n"
     "_cell_angle_gamma 90\n"},
    {"z-not-whole", Level::warning, "Z is not a whole number",
     "Z counts the formula units in the cell, from 1 on.", "_cell_formula_units_Z 0.5\n",
     "_cell_formula_units_Z 1\n"},
    {"z-against-positions", Level::warning, "Z does not go with the positions of the space group",
     "The atoms of an element fill positions, whose multiplicities have a common divisor in each "
     "space group: in P 21/c they are 2 and 4, so that a cell holds an even number of each. Z "
     "times the counts of the sum formula is compared with it, unless occupancies are below 1 or "
     "counts have decimals.",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_cell_formula_units_Z 3\n"
     "_chemical_formula_sum 'C H4 N2 O'\n",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_cell_formula_units_Z 3\n"
     "_chemical_formula_sum 'C2 H8 N4 O2'\n"},
};

}  // namespace

std::span<const CheckCode> symmetry_codes() { return codes; }
