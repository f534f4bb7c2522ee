#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode codes[] = {
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
