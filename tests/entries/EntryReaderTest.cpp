#include "entries/EntryReader.h"

#include <gmock/gmock.h>

#include "entries/CifBeginning.h"
#include "suppliers/FieldTextSupplier.h"

using testing::ElementsAreArray;

namespace {

std::string repeated(const std::string& unit, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) text += unit;
    return text;
}

/// The fields that have a text, as "Label: text".
std::vector<std::string> fields_of(const CifEntry& entry) {
    std::vector<LMRFieldNames::TextID> ids;
    LMRFieldNames::internal_fields(ids);
    std::vector<std::string> fields;
    for (const LMRFieldNames::TextID id : ids) {
        const std::string text = FieldTextSupplier(id).text(entry.entry);
        const char* const label = LMRFieldNames::text(id);
        if (!text.empty() && !entry.text(label)) fields.push_back(label + (": " + text));
    }
    for (const EntryText& text : entry.texts) {
        fields.push_back(std::string(text.label) + ": " + text.text);
    }
    return fields;
}

/// A problem as "line block item: what 'found' (expected)".
std::vector<std::string> problems_of(const CifEntry& entry) {
    std::vector<std::string> problems;
    for (const Problem& p : entry.problems) {
        problems.push_back(std::to_string(p.line) + ' ' + p.block.value_or("none") + ' ' + p.item +
                           ": " + p.what + (p.found.empty() ? "" : " '" + p.found + "'") +
                           (p.expected.empty() ? "" : " (" + p.expected + ")"));
    }
    return problems;
}

}  // namespace

TEST(EntryReader, ReadsWhatThereIsAndTellsWhatItCannotRead) {
    const std::string cell =
        "_cell_length_a 10.234(5)\n_cell_length_b 1.2e1(3)\n_cell_length_c 9\n"
        "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma ";
    const struct {
        std::string items;
        std::vector<std::string> fields, problems;
    } cases[] = {
        {cell + "90\n_symmetry_space_group_name_H-M 'P 21/c'\n_cell_formula_units_Z 2\n",
         {"Cell Lengths: a 10.234(5) b 12(3) c 9", "Cell Angles: a 90 b 90 g 90",
          "Cell Volume: 1105.27", "Space Group: P2<sub>1</sub>/c",
          "Reduced Cell Lengths: a 9 b 10.234 c 12", "Reduced Cell Angles: a 90 b 90 g 90",
          "Reduced Cell Volume: 1105.27", "Sohncke Group: no", "Z, Z': Z: 2 Z': 0.5"},
         {}},
        {cell + "0\n",
         {"Cell Lengths: a 10.234(5) b 12(3) c 9", "Cell Angles: a 90 b 90 g 0"},
         {"2 x : no cell has these edges and angles"}},
        {"_cell_volume 700.8\n_chemical_melting_point '367-370'\n",
         {"Cell Volume: 700.8", "Melting Point: 367-370 K"},
         {}},
        {"_exptl_crystal_colour\n;\n red\n;or pink\n;\n_exptl_crystal_description ;\n",
         {"Color: red ;or pink"},
         {"5 x : ';' at the beginning of a line of a text field",
          "7 x : ';' alone begins a text field only at the beginning of a line"}},
        {"_exptl_crystal_density_meas 'not measured'\n_exptl_crystal_size_max 0.3\n"
         "_exptl_crystal_size_min .1\n_diffrn_reflns_theta_max 27.5\n_reflns_number_gt 12\n"
         "_diffrn_reflns_av_R_equivalents 0.0231\n_refine_ls_wR_factor_ref 12.1\n"
         "_exptl_absorpt_correction_T_max 0.9\n_exptl_absorpt_correction_T_min 0.8\n"
         "_exptl_absorpt_coefficient_mu 1.2(1)\nloop_\n_diffrn_radiation_wavelength\n1.54\n1.55\n",
         {"Crystal Size: 0.3 \xC3\x97 .1 mm", "Wavelength: 1.54, 1.55 \xC3\x85",
          "Absorption Coefficient: 1.2(1) mm\xE2\x81\xBB\xC2\xB9",
          "Absorption Correction: T 0.8 to 0.9", "Theta Range: up to 27.5\xC2\xB0",
          "Reflections: 12 observed, R(int) 2.31 %", "wR-Factor (%): 1210"},
         {"8 x _refine_ls_wr_factor_ref:  '12.1' (a number up to 1)"}},
        {"_journal_name_full 'J. x' _journal_year 2001 _journal_page_first 5\n",
         {"Literature Reference: <i>J. x</i> (2001), 5"},
         {}},
        {"_journal_volume 12 _journal_year 2001\n",
         {"Literature Reference: (<b>12</b>, 2001)"},
         {}},
        {"_chemical_melting_point '70 oC'\n", {"Melting Point: 70 oC"}, {}},
        {"_chemical_melting_point_gt 500(2)\n_chemical_melting_point_lt 510\n",
         {"Melting Point: > 500(2) K, < 510 K"},
         {}},
        {"_chemical_melting_point .3E-305\n",
         {"Melting Point: .3E-305 K"},
         {"2 x _chemical_melting_point:  '.3E-305' (a temperature in K)"}},
        {cell + "12(\n_cell_formula_units_Z 1e400\n_refine_ls_R_factor_gt -\n",
         {},
         {"7 x _cell_angle_gamma:  '12(' (a number)",
          "8 x _cell_formula_units_z:  '1e400' (a number)",
          "9 x _refine_ls_r_factor_gt:  '-' (a number)"}},
        {"_symmetry_space_group_name_H-M 'P x'\n_symmetry_Int_Tables_number .\n",
         {"Space Group: Px"},
         {"2 x _symmetry_space_group_name_h-m: unknown space group 'P x'"}},
        {"_symmetry_space_group_name_H-M 'P x'\n_symmetry_Int_Tables_number 19\n",
         {"Space Group: P2<sub>1</sub>2<sub>1</sub>2<sub>1</sub>", "Sohncke Group: yes"},
         {}},
        {"_cell_formula_units_Z 0e-2147483648\n_space_group_IT_number 1e300\n"
         "_space_group_name_Hall nonsense\nloop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n",
         {"Space Group: P<bar>1</bar>", "Sohncke Group: no"},
         {}},
        {"_space_group_name_Hall '-P 2ybc'\n",
         {"Space Group: P2<sub>1</sub>/c", "Sohncke Group: no"},
         {}},
        {"loop_\n_space_group_symop_operation_xyz\nx,y,z\n" + repeated("-x,-y,-z\n", 191),
         {"Space Group: P<bar>1</bar>", "Sohncke Group: no"},
         {}},
        {"loop_\n_space_group_symop_operation_xyz\n" + repeated("x,y,z\n", 193),
         {},
         {"2 x _space_group_symop_operation_xyz: 193 operations, expected up to 192"}},
        {"_space_group_symop_operation_xyz 99999999*x+99999999*x,y,z\n",  // would overflow
         {},
         {}},
        {"_audit_creation_date 2001-02-30\n",
         {},
         {"2 x _audit_creation_date:  '2001-02-30' (a date like 2004-07-09)"}},
        {"_audit_creation_date 2001-02-03T10:11:12\n_audit_update_record\n;\n2002-03-04 one\n"
         " 2003-04-05 two\n;\n_database_code_depnum_a 'A 12'\n_database_code_B ?\n"
         "_database_code_C 7\n_journal_coeditor_code FG1750\n",
         {"Accession Date: 2001-02-03", "Modification Date: 2003-04-05",
          "Deposition Numbers: Supplementary A 12; Journal FG1750",
          "Cross References: Same structure C 7"},
         {}},
        {"_audit_creation_date 'Tue Jul 9 2004'\n_database_code_Y x\n_journal_page_first o118\n"
         "_journal_page_last o118\n",
         {"Accession Date: 2004-07-09", "Literature Reference: o118"},
         {}},
        {"_cell_length_a 5\n_cell_length_c 6\n_symmetry_space_group_name_H-M 5\n"
         "_refine_ls_R_factor_gt 1e308\n_CELL_length_a 6\n_other 1\n_other 2\n",
         {"Space Group: 5"},
         {"2 x : the cell has no _cell_length_b",
          "4 x _symmetry_space_group_name_h-m: unknown space group '5'",
          "5 x _refine_ls_r_factor_gt:  '1e308' (a number)",
          "6 x _cell_length_a: given again; the first value counts"}},
        {"loop_\n_atom_site_label\n_atom_site_type_symbol\n_atom_site_calc_flag\n"
         "_atom_site_disorder_assembly\n_atom_site_disorder_group\n_atom_site_fract_x\n"
         "_atom_site_fract_y\n_atom_site_fract_z\nX1 C4+ d A 1 0 0 0.5(1)\nC1 N d A 2 0 0 0\n"
         "Co1 Co ? . . 0 0 0\nC9 C d A 1 0 . 0\nCg ? dum . 1 0 0 0\nCg1 . d . 1 0 0 0\n"
         "loop_\n_geom_bond_atom_site_label_1\n_geom_bond_atom_site_label_2\n"
         "_geom_bond_distance\nX1 C9 1.5(1)\nX1 C1 1.5(9)\nC9 CO1 1.5(9)\nC9 c1A 1.51(4)\n"
         "C9 C12' 1.52\nC9 CX2 1.52(4)\nC9 Cl1 1.5(9)\n",
         {"Number Of Coordinates: 3", "Average Sigma (C-C): 0.0600",
          "Disorder: X1, C1 and 1 more atom over 2 positions"},
         {}},
        {"loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n"
         "_atom_site_fract_z\n_atom_site_disorder_group\nC1 0 0 0 -1\nC2 . . . -1\n",
         {"Number Of Coordinates: 1", "Disorder: C1 and C2 over positions related by symmetry"},
         {}},
        {"_chemical_name_common '~a^b~c^'\n_chemical_name_systematic x\\d-ok\n",
         {"Compound Name: x\\d-ok", "Synonym: ~a^b~c^"},
         {"2 x _chemical_name_common: no partner for '^'",
          "2 x _chemical_name_common: no partner for '^'"}},
        {"_chemical_name_systematic\n;\n poly-\n \\m~2~-oxo\n-iron \n\n;\n"
         "_chemical_name_common ?\n_chemical_name_mineral\n;\n ? \n;\n",
         {"Compound Name: poly-\\m~2~-oxo-iron"},
         {}},
        {"_chemical_name_systematic\n;\\\nalpha-\\\n\\k~2~ b\\\nc\nd\n;\n"
         "loop_\n_chemical_name_common\n'one' two .\nloop_\n_publ_author_name\n"
         "'M\\\"uller, Yi-Zhi J.'\n'Van Poucke, L. C.'\n'\xC3\x96z, \xC3\x96.'\n",
         {"Author(s): Y.-Z.J.M\xC3\xBCller, L.C.Van Poucke, \xC3\x96.\xC3\x96z",
          "Compound Name: alpha-\\k~2~ bc d", "Synonym: one; two"},
         {}},
    };
    for (const auto& c : cases) {
        const std::string cif =
            "\xEF\xBB\xBF"
            "data_x\n" +
            c.items;
        const EntryReader reader(cif);
        ASSERT_EQ(reader.size(), 1U);
        const CifEntry entry = reader[0];
        std::vector<std::string> fields = fields_of(entry);
        EXPECT_EQ(std::erase(fields, "Identifier: x"), 1U);
        std::erase(fields, "Sohncke Group: unknown");
        EXPECT_THAT(fields, testing::UnorderedElementsAreArray(c.fields)) << c.items;
        EXPECT_THAT(problems_of(entry), ElementsAreArray(c.problems)) << c.items;
    }
}

TEST(EntryReader, TakesWhatStructuresHaveInCommonFromOtherBlocks) {
    const std::string cif =
        "data_before _publ_section_title none _journal_year 1\n"
        "data_global _journal_year 2001 _chemical_formula_sum C1\n_audit_creation_date never\n"
        "_exptl_crystal_colour\n;a\n;b\n;\n_database_code.depnum_ccdc_archive 'X 7'\n"
        "data_publ loop_ _publ_author_name 'Smith, A.'\n"
        "data_I _cell_length_a 1 _chemical_formula_sum C2 _journal_year ?\n"
        "data_II loop_ _atom_site_label C1 C2 _journal_year 2002\n"
        "data_powder _pd_x 1\ndata_III _cell_length_a ?\n"
        "data_other _journal_year 2003 data_IV _cell_length_a 2\n";
    const std::string first = cif.substr(cif.find("data_global"));
    const EntryReader reader(first);
    const char* const expected[][3] = {{"I", "2001", "C2"},
                                       {"II", "2002", "C1"},
                                       {"powder", "2001", "C1"},
                                       {"III", "2001", "C1"},
                                       {"IV", "2003", ""}};
    ASSERT_EQ(reader.size(), std::size(expected));
    for (std::size_t i = 0; i < reader.size(); ++i) {
        const CifEntry entry = reader[i];
        EXPECT_EQ(entry.entry->identifier, expected[i][0]);
        EXPECT_EQ(entry.entry->publication->year, expected[i][1]);
        EXPECT_EQ(entry.entry->chemical_info->formula, expected[i][2]);
        EXPECT_EQ(entry.entry->publication->authors.size(), i < 4 ? 1U : 0U);
        EXPECT_EQ(entry.entry->deposition_info->depositions.size(), i < 4 ? 1U : 0U);
        const std::vector<std::string> problems = problems_of(entry);
        EXPECT_EQ(std::count(problems.begin(), problems.end(),
                             "2 global _audit_creation_date:  'never' (a date like 2004-07-09)"),
                  i == 0 ? 1 : 0);
        EXPECT_EQ(std::count(problems.begin(), problems.end(),
                             "5 global : ';' at the beginning of a line of a text field"),
                  i == 0 ? 1 : 0);
    }
    // Those that follow count where none stand before; without structures all are entries.
    const std::string reversed =
        "data_I _cell_length_a 1 " + cif.substr(0, cif.size() - first.size());
    const EntryReader behind(reversed);
    EXPECT_EQ(behind[0].entry->publication->year, "1");
    EXPECT_EQ(behind.size(), 1U);
    const std::string authors = "data_g loop_ _publ_author_name" + repeated(" a", 10001);
    const std::string hostile = authors + " data_s _cell_length_a 1";
    const EntryReader many(hostile);
    EXPECT_TRUE(many[0].entry->publication->authors.empty());
    EXPECT_EQ(EntryReader("data_a _publ_x 1 data_b _journal_year 1").size(), 2U);
}

TEST(EntryReader, DoubtsVolumesThatTheCellCannotHave) {
    const struct {
        const char* cell;  // a, b, c and the angles, without measured ones at 90 degrees
        const char* volume;
        bool doubted;
    } cases[] = {
        // The edges make 1000; their uncertainties 0.17, half their last places 0.15.
        {"10.000(1) 10.000(1) 10.000(1) 90 90 90", "1000.0(1)", false},
        {"10.000(1) 10.000(1) 10.000(1) 90 90 90", "1000.7(1)", false},
        {"10.000(1) 10.000(1) 10.000(1) 90 90 90", "1000.9(1)", true},
        {"10.000 10.000 10.000 90 90 90", "1000.2", false},
        {"10.000 10.000 10.000 90 90 90", "1000.3", true},
        {"10.000 10.000 10.000 90 90 120", "866.0", false},  // 120 degrees are no measurement
        {"10.000 10.000 10.000 90 90 120", "867.0", true},
        {"10.000 10.000 10.000 90 90 119.0(5)", "867", false},
        {"10.000 10.000 10.000 90 90 0", "867", false},  // is wrong for another reason
    };
    for (const auto& c : cases) {
        const std::string cif =
            "data_x _cell_volume " + std::string(c.volume) +
            " loop_ _cell_length_a _cell_length_b _cell_length_c _cell_angle_alpha "
            "_cell_angle_beta _cell_angle_gamma " +
            c.cell;
        const EntryReader reader(cif);
        const CifEntry entry = reader[0];
        const bool doubted = !entry.problems.empty() &&
                             entry.problems[0].level == Problem::Level::warning &&
                             entry.problems[0].item == "_cell_volume";
        EXPECT_EQ(doubted, c.doubted) << c.cell << ' ' << c.volume;
    }
}

TEST(CifDocument, ValuesKeepWhereTheyStand) {
    const std::string cif =
        "# 1\ndata_a\n_Tag 'it''s' _b \"?\"\nloop_ _c _d\n1 ;x\n2\n;text\n;\n"
        "save_f _e 5 save_ global_ _f .";
    const CifDocument document(cif);
    ASSERT_EQ(document.blocks(), 2U);
    const CifBlock block = document.block(0);
    const auto stands = [&](const char* tag, std::size_t row, const char* raw, CifQuoting quoting,
                            const char* text, unsigned long line) {
        const CifItem* const item = block.find(tag);
        ASSERT_NE(item, nullptr) << tag;
        const CifValue value = (*item)[row];
        EXPECT_EQ(value.raw, raw);
        EXPECT_EQ(value.raw.data(), cif.data() + cif.find(raw)) << raw;
        EXPECT_EQ(value.quoting(), quoting) << raw;
        EXPECT_EQ(value.text(), text);
        EXPECT_EQ(document.line_of(item->origin()), line) << tag;
    };
    stands("_tag", 0, "'it''s'", CifQuoting::single_quotes, "it''s", 3);
    stands("_b", 0, "\"?\"", CifQuoting::double_quotes, "", 3);
    stands("_c", 1, "2", CifQuoting::bare, "2", 4);
    stands("_d", 0, ";x", CifQuoting::bare, ";x", 4);
    stands("_d", 1, ";text\n;", CifQuoting::text_field, "text", 4);
    EXPECT_TRUE(block.find("_c")->in_loop() && !block.find("_b")->in_loop());
    EXPECT_EQ(block.find("_e"), nullptr);
    EXPECT_EQ(block.name(), "a");
    EXPECT_EQ(document.block(1).name(), "");
    EXPECT_THAT(document.block(1).find_all("_f"), testing::SizeIs(1));
}

TEST(CifDocument, ReadsTheValuesOfBothVersions) {
    const struct {
        const char *raw, *text;
        int versions;  // in which it is one value: 1, 2 or 3 for both
    } cases[] = {
        {"'''a\n'b'''", "a\n'b", 2},
        {R"("""""")", "", 3},
        {R"(""""x""")", "\"x", 3},
        {"'a'b'", "a'b", 1},
        {"[1 [2 ']' \"]\" '''\n]''']\n;]\n; # ]\n]", nullptr, 2},
        {R"({'k':[1] "l":{}})", nullptr, 2},
        {"[1)", nullptr, 1},
        {"[}", nullptr, 1},
        {"M\xC3\xBCller", nullptr, 2},
        {";a\r\n;b\r\r\n;", "a\n;b\n", 3},
        {";\r;", "", 3},
        {";", "", 3},
    };
    for (const auto& c : cases) {
        for (const int version : {1, 2}) {
            const std::string cif = (version == 2 ? "#\\#CIF_2.0\r" : "#\r") +
                                    std::string("data_x\r\n_cell.Length_a\r\n ") + c.raw;
            const bool is_field = c.raw[0] == ';' && c.raw[1] != '\0';
            const std::string bytes = is_field ? cif.substr(0, cif.rfind(" ;")) + c.raw : cif;
            bool is_value = false;
            try {
                const CifDocument document(bytes);
                const CifItem* const item = document.block(0).find("_cell_length_a");
                is_value = item && item->size() == 1 && (*item)[0].raw == c.raw;
                EXPECT_TRUE(!is_value || (*item)[0].text() == (c.text ? c.text : c.raw)) << c.raw;
                EXPECT_EQ(document.line_of(item->origin()), 3U);
            } catch (const CifError&) {
            }
            EXPECT_EQ(is_value, (c.versions & version) != 0) << c.raw << ' ' << version;
        }
    }
    std::string deep = "#\\#CIF_2.0\ndata_x _a " + std::string(100000, '[');
    EXPECT_THROW(CifDocument{deep}, CifError);
    deep.append(100000, ']');
    EXPECT_EQ(CifDocument(deep).blocks(), 1U);
}

TEST(CifDocument, SaysInWhichLineWhatIsNoCif) {
    const std::pair<const char*, std::pair<unsigned long, const char*>> cases[] = {
        {"data_x\n_chemical_name_common 'unclosed\n", {2, "unterminated 'string'"}},
        {"data_x\n;\n", {2, "expected a tag, loop_ or data_"}},
        {"data_x\n_a\n;text\n; more\n;\n",
         {4, "expected a tag behind the text field, which ends at the ';' that begins this line"}},
        {"data_x\n_a\n ;\n text\n",
         {4, "expected text fields to begin with ';' at the beginning of a line"}},
        {"data_x _a 'b'\n_c _d 1\n", {2, "expected a value"}},
        {"#\\#CIF_2.0\ndata_x\n_a [1\n2}\n", {3, "unterminated list or table"}},
        {"#\\#CIF_2.0\ndata_x\n_a 'b'c\n", {3, "expected a blank behind the value"}},
        {"data_x\nloop_\n_a _b\n1 2 3\n", {2, "Wrong number of values in the loop"}},
        {"\xEF\xBB\xBF# one\n#two\n\t GLOBAL_\n_cell_length_a ?\n", {0, ""}},
        {" \r\n# one\ndat", {3, "expected block header (data_)"}},
        {"_cell_length_a 1\ndata_x\n", {1, "expected block header (data_)"}},
        {" # only\n", {1, "expected a data block"}},
    };
    for (const auto& [cif, expected] : cases) {
        try {
            const CifDocument document(cif);
            EXPECT_EQ(expected.first, 0U) << cif;
        } catch (const CifError& error) {
            EXPECT_EQ(error.line(), expected.first) << cif;
            EXPECT_STREQ(error.what(), expected.second) << cif;
        }
    }
    CifBeginning beginning;
    std::string bytes = "\xEF\xBB\xBF # data_\n";
    EXPECT_TRUE(beginning.may_be_cif(bytes));
    EXPECT_TRUE(beginning.may_be_cif(bytes += " Global"));
    EXPECT_TRUE(beginning.may_be_cif(bytes += "_"));
    EXPECT_FALSE(CifBeginning().may_be_cif("#\nloop_ _a 1"));
}
