#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
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
    {"density-mismatch", Level::warning, "the density is not that of the cell's contents",
     "The density is compared with Z formula weights in the volume of the cell; 1 u in 1 "
     "\xC3\x85\xC2\xB3 is 1.66053907 g/cm\xC2\xB3. Half a unit of its last place and 0.2 % are "
     "allowed. Without a weight that of the sum formula counts; where the formula makes the "
     "density and the weight does not, the density stands. Mostly Z or the volume is wrong.",
     "_chemical_formula_weight 60.06\n_cell_formula_units_Z 4\n_cell_volume 145.1\n"
     "_exptl_crystal_density_diffrn 1.374\n",
     "_chemical_formula_weight 60.06\n_cell_formula_units_Z 2\n_cell_volume 145.1\n"
     "_exptl_crystal_density_diffrn 1.376\n"},
    {"f000-mismatch", Level::warning, "F(000) is not the number of electrons in the cell",
     "F(000) is compared with the electrons of Z sum formulae. Half an electron and the rounding "
     "of counts with decimals are allowed, and the dispersion of X-rays where F(000) has decimals. "
     "What neutrons or electrons measured is not compared. Mostly hydrogen atoms or solvent are in "
     "one of the two only, or Z is wrong.",
     "_chemical_formula_sum 'C H4 N2 O'\n_cell_formula_units_Z 2\n_exptl_crystal_F_000 60\n",
     "_chemical_formula_sum 'C H4 N2 O'\n_cell_formula_units_Z 2\n_exptl_crystal_F_000 64.2\n"},
};

}  // namespace

std::span<const CheckCode> cell_codes() { return codes; }
