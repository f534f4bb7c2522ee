#pragma once

#include <string_view>

// The items of CIF files that entries are read from, as they are usually written. Of several in one
// list the first that has a value counts.
namespace cif_tags {

inline constexpr std::string_view identifier = "_cod_database_code";
inline constexpr std::string_view sum_formula = "_chemical_formula_sum";
inline constexpr std::string_view name = "_chemical_name_systematic";
inline constexpr std::string_view synonyms[] = {"_chemical_name_common", "_chemical_name_mineral"};

inline constexpr std::string_view author = "_publ_author_name";
inline constexpr std::string_view journal = "_journal_name_full";
inline constexpr std::string_view last_page = "_journal_page_last";
inline constexpr std::string_view accession = "_audit_creation_date";
inline constexpr std::string_view update = "_audit_update_record";
inline constexpr std::string_view editor_code = "_journal_coeditor_code";
// What follows these names the database or the archive.
inline constexpr std::string_view database_prefix = "_database_code_";
inline constexpr std::string_view deposition_prefix = "_database_code_depnum_";

inline constexpr std::string_view melting_point = "_chemical_melting_point";
inline constexpr std::string_view melting_point_above = "_chemical_melting_point_gt";
inline constexpr std::string_view melting_point_below = "_chemical_melting_point_lt";

inline constexpr std::string_view cell[] = {"_cell_length_a",   "_cell_length_b",
                                            "_cell_length_c",   "_cell_angle_alpha",
                                            "_cell_angle_beta", "_cell_angle_gamma"};
inline constexpr std::string_view volume = "_cell_volume";
inline constexpr std::string_view symbol[] = {"_space_group_name_H-M_alt",
                                              "_symmetry_space_group_name_H-M"};
inline constexpr std::string_view hall_symbol[] = {"_space_group_name_Hall",
                                                   "_symmetry_space_group_name_Hall"};
inline constexpr std::string_view group_number[] = {"_space_group_IT_number",
                                                    "_symmetry_Int_Tables_number"};
inline constexpr std::string_view operations[] = {"_space_group_symop_operation_xyz",
                                                  "_symmetry_equiv_pos_as_xyz"};
inline constexpr std::string_view z = "_cell_formula_units_Z";

inline constexpr std::string_view temperature[] = {"_diffrn_ambient_temperature",
                                                   "_cell_measurement_temperature"};
inline constexpr std::string_view r_factor[] = {"_refine_ls_R_factor_gt", "_refine_ls_R_factor_obs",
                                                "_refine_ls_R_factor_all"};
inline constexpr std::string_view bond[] = {"_geom_bond_atom_site_label_1",
                                            "_geom_bond_atom_site_label_2", "_geom_bond_distance"};
inline constexpr std::string_view atom_label = "_atom_site_label";
inline constexpr std::string_view atom[] = {atom_label, "_atom_site_fract_x", "_atom_site_fract_y",
                                            "_atom_site_fract_z"};
inline constexpr std::string_view atom_type = "_atom_site_type_symbol";
inline constexpr std::string_view atom_flag = "_atom_site_calc_flag";
inline constexpr std::string_view disorder_assembly = "_atom_site_disorder_assembly";
inline constexpr std::string_view disorder_group = "_atom_site_disorder_group";

}  // namespace cif_tags
