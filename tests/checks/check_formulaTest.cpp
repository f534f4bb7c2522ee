#include <gmock/gmock.h>

#include "tests/checks/codes_of.h"

namespace {

std::string codes_of_sum(const std::string& sum, const std::string& moiety = "?",
                         const std::string& weight = "?") {
    return codes_of("_chemical_formula_sum '" + sum + "'\n_chemical_formula_moiety '" + moiety +
                    "'\n_chemical_formula_weight " + weight);
}

/// A file with one operation of P -1 and one site besides, which are given.
std::string codes_of_atoms(const std::string& sum, int z, const std::string& sites) {
    return codes_of(
        "_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 80\n"
        "_cell_angle_beta 85\n_cell_angle_gamma 95\n_symmetry_space_group_name_H-M 'P -1'\n"
        "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n_cell_formula_units_Z " +
        std::to_string(z) + "\n_chemical_formula_sum '" + sum +
        "'\nloop_\n_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n"
        "_atom_site_fract_y\n_atom_site_fract_z\n_atom_site_occupancy\n_atom_site_calc_flag\n"
        "_atom_site_disorder_group\n" +
        sites);
}

}  // namespace

TEST(CheckFormula, WritesSumsByTheConvention) {
    const struct {
        const char *sum, *codes;
    } cases[] = {
        {"C6 H6", ""},
        {"C6 D6 Cl", ""},
        {"C6 H4 Cl D2", ""},  // deuterium where it is wanted
        {"Ca H4 O2", ""},
        {"C H3 n", "sum-unreadable: symbols with their counts, such as C6 H12 O6\n"},
        {"(C2 H4)n", ""},  // unknowns are left alone
        {"Fe1-x S", ""},
        {"c6 h6", "element-case: 'C6 H6'\n"},
        {"C6 H5 BR", "element-case: 'C6 H5 Br'\n"},
        {"O2 C6H4.50", "formula-blanks: 'C6 H4.50 O2'\n"},
        {"C6 H4 CO", "sum-not-added-up: C7 H4 O\n"},  // or cobalt
        {"C6 H4 NI", "formula-blanks: C6 H4 I N\n"},  // or nickel
        {"H2 O C", "formula-order: 'C H2 O'\n"},
        {"O Ca H2", "formula-order: 'Ca H2 O'\n"},
        {"(Cu Al2) O4", "sum-not-added-up: 'Al2 Cu O4'\n"},
        {"Fe(N H4)0.12345", "sum-not-added-up: \n"},  // more decimals than are written
        {"13C6 H6", "sum-not-added-up: C78 H78\n"},   // or an isotope
        {"C6 H6 Xy", "element-unknown: an element, not Xy\n"},
    };
    for (const auto& c : cases) EXPECT_EQ(codes_of_sum(c.sum), c.codes) << c.sum;
    EXPECT_EQ(codes_of_sum("C6 H4 NI", "?", "216.98"), "formula-blanks: 'C6 H4 I N'\n");
}

TEST(CheckFormula, ComparesSumsWithMoieties) {
    const struct {
        const char *sum, *moiety, *codes;
    } cases[] = {
        {"C26 H32 N6 Ni O14 S2", "C12 H16 N4 Ni O4 2+, 2(C7 H4 N O3 S -), 4H2 O", ""},
        {"C8.33 H2.66", "C8 H2, 0.33(C H2)", ""},
        {"C8.33 H2.67", "C8 H2, 0.333(C H2)", ""},
        {"C6 H6", "C6 D6", ""},
        {"C4 H8", "(C2 H4)n", ""},
        {"C4 H8", "(C2 H5)n", "sum-moiety-differ: C4 H10\n"},
        {"C4 H8 O", "C4 H8, n(H2 O)", ""},
        {"C4 H8 O", "2(C4 H8 O)", "sum-moiety-differ: C8 H16 O2, which is 2 times that\n"},
        {"C4 H10 O", "C4 H8 O", "sum-moiety-differ: C4 H8 O\n"},
        {"C6 H6", "C6H6", "formula-blanks: 'C6 H6'\n"},
        {"C6 H4 I N", "C6 H4 NI", "formula-blanks: 'C6 H4 N I'\n"},
        {"C6 H6", "C6 H6, solvent",
         "moiety-unreadable: moieties with commas between them, such as C6 H12 O6, 2(H2 O)\n"},
    };
    for (const auto& c : cases) EXPECT_EQ(codes_of_sum(c.sum, c.moiety), c.codes) << c.moiety;
}

TEST(CheckFormula, ComparesSumsWithWeights) {
    const struct {
        const char *sum, *weight, *codes;
    } cases[] = {
        {"C24 H30 O8", "446.48", ""},
        {"C24 H30 O8", "446.5(1)", ""},
        {"C24 H30 O8", "447", ""},
        {"C24 H30 O8", "445.5", "sum-weight-differ: 446.49 for C24 H30 O8\n"},
        {"C24 H30 O8", "892.96",
         "sum-weight-differ: 446.49 for C24 H30 O8; this is 2 times that\n"},
        {"C6 D6", "84.15", ""},
        {"C6 D6", "78.11", ""},
        {"Al2.91 Fe0.09 K", "122.6", ""},
        {"C96 H124 O14 Sn4", "1975.71", "sum-weight-differ: 1976.84 for C96 H124 O14 Sn4\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(codes_of_sum(c.sum, "?", c.weight), c.codes) << c.weight;
    }
}

TEST(CheckFormula, ComparesSumsWithAtoms) {
    const std::string c1 = "C1 C .1 .2 .3 1 d .\n", c2 = "C2 C .3 .2 .1 1 d .\n",
                      n0 = "N1 N 0 .5 0 1 d .\n", n1 = "N1 N .2 .4 .1 ? d .\n",
                      h1 = "H1 H .7 .2 .3 1 calc .\n", h2 = "H2 H ? ? ? 1 . .\n",
                      dummy = "X1 C .4 .2 .3 1 dum .\n", half_n0 = "N1 N 0 .5 0 .5 d .\n";
    const struct {
        const char* sum;
        int z;
        std::string sites, codes;
    } cases[] = {
        {"C H N", 2, c1 + n1 + h1, ""},
        {"C2 N", 1, c1 + n0 + dummy, ""},
        {"C2 N", 1, c1 + half_n0, ""},  // by site factors
        {"C N", 1, c1 + n0, "atoms-differ: C2 N by the atoms and Z\n"},
        {"C3 N", 1, c1 + n0, "atoms-missing: C2 N by the atoms and Z\n"},
        {"C H2 N", 2, c1 + n1 + h1, "atoms-missing: C H N by the atoms and Z\n"},
        {"C H2 N", 2, c1 + n1 + h2, ""},
        {"C H2 N", 2, c1 + n1, ""},
        {"C N", 4, c1 + n1, "atoms-multiple: 2 by the atoms\n"},
        {"C N", 2, c1 + "C2 C .3 .2 .1 ? d 2\n" + n1, ""},  // how much of it is not known
        {"C N", 2, c1 + "A1 Q .3 .2 .1 1 d .\n" + n1, ""},
        {"C2 N", 2, c1 + "C2A C .3 .2 .1 .61(1) d 1\nC2B C .3 .2 .2 .39(1) d 2\n" + n1, ""},
        {"C2 N", 2, c1 + c2 + "C2B C .3 .2 .2 .39(1) d 2\n" + n1,
         "atoms-differ: C2.39 N by the atoms and Z\n"},
        {"C2 N", 2, c1 + c2 + n1 + "W1 W .3 .2 .1 1 d .\n", ""},  // water
        {"C2 N", 2, c1 + c2 + n1 + "T1 Si/Al .3 .2 .1 1 d .\n", ""},
        {"C2 N", 1, c1 + "N1 N .001 .499 .001 1 d .\n", ""},  // not very exact
        {"C2 N2", 1, c1 + "N1 N .03 .5 0 1 d .\n", ""},
        {"C1.9 N1.02", 2, c1 + c2 + n1, ""},  // measured
    };
    for (const auto& c : cases) {
        EXPECT_EQ(codes_of_atoms(c.sum, c.z, c.sites), c.codes) << c.sum << "\n" << c.sites;
    }
}
