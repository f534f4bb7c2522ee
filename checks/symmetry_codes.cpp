#include <algorithm>
#include <array>

#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

/// A loop of so many operations.
template <std::size_t rows>
constexpr auto operations() {
    constexpr std::string_view tag = "loop_\n_symmetry_equiv_pos_as_xyz\n", row = "x,y,z ";
    std::array<char, tag.size() + rows * row.size() + 1> text{};
    auto end = std::copy(tag.begin(), tag.end(), text.begin());
    for (std::size_t i = 0; i < rows; ++i) end = std::copy(row.begin(), row.end(), end);
    *(end - 1) = '\n';
    return text;
}
constexpr auto most_operations = operations<192>();
constexpr auto too_many_operations = operations<193>();

constexpr CheckCode codes[] = {
    {"unknown-space-group", Level::error, "the space group is not known",
     "The symbol is that of none of the 230 groups in any setting, and neither Hall symbol, "
     "operations nor number tell the group.",
     "_symmetry_space_group_name_H-M 'P 21/q'\n", "_symmetry_space_group_name_H-M 'P 21/n'\n"},
    {"space-group-symbols-differ", Level::warning, "two symbols are of different space groups",
     "The group of the second symbol is not that of the first, or not in its setting.",
     "_space_group_name_H-M_alt 'P 1 21/c 1'\n_symmetry_space_group_name_H-M 'P 1 21/n 1'\n",
     "_space_group_name_H-M_alt 'P 1 21/c 1'\n_symmetry_space_group_name_H-M P2(1)/c\n"},
    {"hall-symbol-differs", Level::warning, "the Hall symbol is of another space group",
     "The Hall symbol makes other operations than the group has that the symbol before it tells.",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_symmetry_space_group_name_Hall '-P 2yn'\n",
     "_symmetry_space_group_name_H-M 'P 1 21/c 1'\n_symmetry_space_group_name_Hall '-P 2ybc'\n"},
    {"operations-differ", Level::warning, "the operations are of another space group",
     "The listed operations are not those of the group that symbol or Hall symbol tell, or of "
     "another setting of it; their order does not count.",
     "_symmetry_space_group_name_H-M 'P -1'\nloop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,y,-z\n",
     "_symmetry_space_group_name_H-M 'P -1'\nloop_\n_symmetry_equiv_pos_as_xyz\n-x,-y,-z\nx,y,z\n"},
    {"space-group-number-differs", Level::warning, "the number is of another space group",
     "The number in International Tables is compared with that of the group that symbol, Hall "
     "symbol or operations tell.",
     "_symmetry_space_group_name_H-M 'P 21/c'\n_symmetry_Int_Tables_number 15\n",
     "_symmetry_space_group_name_H-M 'P 21/c'\n_symmetry_Int_Tables_number 14\n"},
    {"too-many-operations", Level::error, "more symmetry operations than any group has",
     "No group has more than 192 operations in one cell. They are not compared.",
     too_many_operations.data(), most_operations.data()},
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
