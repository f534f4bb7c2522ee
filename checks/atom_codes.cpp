#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode rows[] = {
    {"atoms-differ", Level::warning, "the atoms are others than the sum formula says",
     "The sites are added up, each with its occupancy and as often as the operations repeat it, "
     "and divided by Z. There is more of an element than the sum formula has, beyond what "
     "occupancies are known to. Nothing is said where a site has no type, place or occupancy.",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P -1'\n"
     "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n"
     "_cell_formula_units_Z 2\n_chemical_formula_sum 'C N'\n"
     "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
     "C1 0.1 0.2 0.3\nC2 0.3 0.1 0.4\nN1 0.2 0.4 0.1",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P -1'\n"
     "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n"
     "_cell_formula_units_Z 2\n_chemical_formula_sum 'C N'\n"
     "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
     "C1 0.1 0.2 0.3\nN1 0.2 0.4 0.1"},
    {"atoms-missing", Level::note, "the atoms are fewer than the sum formula says",
     "As for atoms-differ, but of no element are there too many: hydrogen or solvent may not have "
     "been located. Files that have no hydrogen atoms at all, and files that say that solvent was "
     "left out of the refinement, are not told of.",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P -1'\n"
     "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n"
     "_cell_formula_units_Z 2\n_chemical_formula_sum 'C2 N'\n"
     "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
     "C1 0.1 0.2 0.3\nN1 0.2 0.4 0.1",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P -1'\n"
     "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n"
     "_cell_formula_units_Z 2\n_chemical_formula_sum 'C2 H N'\n"
     "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
     "C1 0.1 0.2 0.3\nC2 0.3 0.1 0.4\nN1 0.2 0.4 0.1"},
    {"atoms-multiple", Level::warning, "the atoms of the cell are those of another Z",
     "As for atoms-differ, but all atoms but hydrogen are as the sum formula says where Z is "
     "another number: sum formula and Z do not belong to each other.",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P -1'\n"
     "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n"
     "_cell_formula_units_Z 1\n_chemical_formula_sum 'C N'\n"
     "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
     "C1 0.1 0.2 0.3\nN1 0.2 0.4 0.1",
     "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
     "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P -1'\n"
     "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n"
     "_cell_formula_units_Z 1\n_chemical_formula_sum 'C N'\n"
     "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
     "C1 0 0 0\nN1 0 0.5 0"},
};

}  // namespace

std::span<const CheckCode> atom_codes() { return rows; }
