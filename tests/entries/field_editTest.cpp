#include "entries/field_edit.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "entries/EditedEntry.h"
#include "entries/PersonName.h"
#include "entries/further_fields.h"

namespace {

std::vector<std::string> files() {
    std::vector<std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(DATA_FOLDER)) {
        if (file.path().extension() != ".cif") continue;
        std::ifstream in(file.path(), std::ios::binary);
        files.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
    return files;
}

std::vector<std::string> labels() {
    std::vector<std::string> labels;
    for (const LMRFieldNames::TextID id : LMRFieldNames::internal_list()) {
        labels.emplace_back(LMRFieldNames::text(id));
    }
    for (const FurtherField& field : further_fields()) labels.emplace_back(field.label);
    return labels;
}

std::string shown(const std::string& file, const std::string& label) {
    const EntryReader entries(file);
    CifEdits edits(entries.document());
    return EditedEntry(entries, 0, edits).shown(label);
}

/// The file with a field of its first entry changed.
std::string edited(const std::string& file, const std::string& label, const std::string& text) {
    const EntryReader entries(file);
    CifEdits edits(entries.document());
    edit_field(entries, 0, label, text, edits);
    return spliced(file, edits.splices());
}

/// Why a text is refused; "none" where it is not.
std::string refusal(const std::string& file, const std::string& label, const std::string& text) {
    try {
        return edited(file, label, text) == file ? "unchanged" : "none";
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
}

struct Change {
    const char *label, *text;
};

constexpr Change changes[] = {
    {"Identifier", "7000001"},
    {"Cell Lengths", "a 5.1 b 7.25(1) c 9.000(12)"},
    {"Cell Angles", "a 90 b 100.5(3) g 90"},
    {"Cell Volume", "1234.5(6)"},
    {"Space Group", "P2<sub>1</sub>2<sub>1</sub>2<sub>1</sub>"},
    {"Space Group", "C2/c"},
    {"Space Group", "I<bar>4</bar>3m"},
    {"Temperature (K)", "120(1)"},
    {"Temperature (text)", "not measured"},
    {"Pressure", "101.3(1) kPa"},
    {"Density (author)", "1.234"},
    {"R-Factor (%)", "3.07"},
    {"Radiation Source", "rotating anode, 5 kW"},
    {"Absolute Configuration", "syn"},
    {"Diffraction Details", "\\w scans; 2\\q up to 50\\%"},
    {"Accession Date", "2004-07-09"},
    {"Formula", "C6 H12 O6"},
    {"Compound Name", "\\a-<i>D</i>-glucose, H~2~O and 'quotes' \"of both kinds\""},
    {"Source", "_looks like a tag"},
    {"Color", "#2"},
    {"Melting Point", "350(2) K"},
    {"Melting Point", "> 340 K, < 350 K"},
    {"Melting Point", "230 C (dec.)"},
    {"Literature Reference", "<j>Z. f\u00FCr Kristallographie</j><v>7</v><y>2001</y><p>12-15</p>"},
    {"Literature Reference", "<i>Acta Cryst.</i> (<b>60</b>), m258-m260"},
    {"Author(s)", "J.B.Smith, R.B.von Dreele, H.-Z.Xie, J.Garc\u00EDa Jr, H.St.C.O'Neill"},
    {"Author(s)", "A.Lone"},
    {"Cross References", "Same structure CSD ABCDEF; Same structure ICSD 1234"},
    {"Deposition Numbers", "Journal AB1234"},
    {"Title", "One of \\'etudes on \\\\infty, a \\\\times b"},
    {"DOI", "10.1002/(SICI)1521-3749(200001)626:1<62::AID-ZAAC62>3.0.CO;2-E"},
    {"Moiety Formula", "C18 H18 N4 2+, 2(B F4 1-)"},
    {"Formula Weight", "180.16"},
    {"Measured Density", "2.80-2.85 g/cm\u00B3"},
    {"F(000)", "512"},
    {"Crystal Size", "0.30 \u00D7 0.20 mm"},
    {"Crystal Size", "radius 0.15 mm"},
    {"Wavelength", "1.54184 \u00C5"},
    {"Absorption Coefficient", "0.55 mm\u207B\u00B9"},
    {"Absorption Correction", "multi-scan, T 0.5 to 0.9"},
    {"Absorption Correction", "T up to 0.9"},
    {"Theta Range", "2.5 to 27.5\u00B0"},
    {"Theta Range", "from 3\u00B0"},
    {"Reflections", "100 measured, 50 independent, R(int) 4.5 %"},
    {"wR-Factor (%)", "10.5"},
    {"Goodness Of Fit", "1.05"},
};

}  // namespace

TEST(field_edit, ChangesNothingForTheTextThatIsThere) {
    for (const std::string& file : files()) {
        for (const std::string& label : labels()) {
            EXPECT_EQ(edited(file, label, shown(file, label)), file) << label;
        }
    }
}

TEST(field_edit, IsReadBackAsItWasWritten) {
    std::vector<std::string> all = files();
    const std::string cell =
        "data_x\n_cell.length_a 5\n_cell.length_b 5\n_cell.length_c 5\n_cell.angle_alpha 90\n"
        "_cell.angle_beta 90\n_cell.angle_gamma 90\n_cell.volume 125";
    all.push_back(cell);
    all.push_back("#\\#CIF_2.0\n" + cell);
    for (const std::string& file : all) {
        for (const Change& change : changes) {
            try {
                EXPECT_EQ(shown(edited(file, change.label, change.text), change.label), change.text)
                    << file.substr(0, 300);
            } catch (const std::invalid_argument& error) {
                ADD_FAILURE() << change.label << ' ' << change.text << ' ' << error.what();
            }
        }
    }
}

TEST(field_edit, TakesAwayWhatIsThere) {
    for (const std::string& file : files()) {
        for (const std::string& label : labels()) {
            // Of some, other items tell when their own do not.
            const bool has_others =
                label == "Identifier" || label == "Cell Volume" || label == "Space Group";
            if (items_of(label)->refusal || has_others) continue;
            EXPECT_EQ(shown(edited(file, label, ""), label), "") << label << shown(file, label);
        }
    }
}

TEST(field_edit, SaysWhyItRefuses) {
    const std::string cell =
        "data_x\n_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n_cell_angle_alpha 90\n"
        "_cell_angle_beta 90\n_cell_angle_gamma 90\n_symmetry_space_group_name_H-M 'P 1'\n"
        "_cell_formula_units_Z 2\n_journal_year 2000\n_chemical_name_common "
        "x\n_chemical_name_mineral y\n";
    const struct {
        const char *label, *text, *reason;
    } cases[] = {
        {"Cell Lengths", "5 6 7", "expected a text like 'a ... b ... c ...', not '5 6 7'"},
        {"Cell Lengths", "a 5 b x c 7",
         "expected a number in \u00C5 above 0 in a text like 'a ... b ... c ...', not 'x'"},
        {"Cell Lengths", "a -5.1 b 6 c 7",
         "expected a number in \u00C5 above 0 in a text like 'a ... b ... c ...', not '-5.1'"},
        {"Cell Lengths", "a 5 \u00C5 b 6 A c 7", "unchanged"},
        {"Cell Angles", "a 90\u00B0 b 90 g 90", "unchanged"},
        {"Cell Angles", "a 90 b 90 g 190",
         "expected a number in \u00B0 above 0 and below 180 in a text like 'a ... b ... g ...', "
         "not '190'"},
        {"Cell Volume", "211", "is computed from the cell"},
        {"Cell Volume", "210", "unchanged"},
        {"Reduced Cell Volume", "211", "is computed from the cell and its centring"},
        {"Sohncke Group", "no", "is computed from the space group"},
        {"Disorder", "some", "is made of the disorder groups of the atoms"},
        {"Memo", "x", "no item of CIF files holds it"},
        {"Nonsense", "x", "is no field"},
        {"Space Group", "P9", "expected the symbol of a space group, not 'P9'"},
        {"Space Group", "P 1", "unchanged"},
        {"Z, Z'", "Z: 4 Z': 9", "Z' is computed from Z and the space group"},
        {"Z, Z'", "Z: 2.5",
         "expected a whole number above 0 in a text like 'Z: ... Z': ...', not '2.5'"},
        {"Z, Z'", "Z: 0",
         "expected a whole number above 0 in a text like 'Z: ... Z': ...', not '0'"},
        {"Formula", "C6 Hh2", "expected a formula like C12 H22 O11, not 'C6 Hh2'"},
        {"Temperature (K)", "cold", "expected a number in K above 0, not 'cold'"},
        {"Theta Range", "2.0-30.0\u00B0",
         "expected a number in a text like '... to ...\u00B0', not '2.0-30.0'"},
        {"Absorption Correction", "multi-scan, T 0,5 to 0.9",
         "expected a number in a text like '..., T ... to ...', not '0,5'"},
        {"Crystal Size", "0.3 by 0.2 mm",
         "expected a number in a text like '... \u00D7 ... \u00D7 ... mm', not '0.3 by 0.2'"},
        {"Temperature (text)", "293",
         "expected words, as a number is the text of Temperature (K), not '293'"},
        {"Pressure", "high", "expected a number or a range of numbers in kPa, not 'high'"},
        {"Accession Date", "9/7/2004", "expected a date like 2004-07-09, not '9/7/2004'"},
        {"Color", "?", "'?' stands for no text; an empty one takes it away"},
        {"Synonym", "x",
         "expected as many values as there are, as _chemical_name_common and "
         "_chemical_name_mineral hold them"},
        {"Synonym", "x; y", "unchanged"},
        {"Author(s)", "J.Smith, smith jones foo",
         "expected names like 'J.Smith, R.von Dreele' or 'Smith, John; von Dreele, R.', not "
         "'smith jones foo'"},
        {"Author(s)", "Smith, John",
         "expected names like 'J.Smith, R.von Dreele' or 'Smith, John; von Dreele, R.', not "
         "'Smith'"},
        {"Literature Reference", "Acta Cryst. C60, m258",
         "expected a text like '<j>...</j><v>...</v><y>...</y><p>...-...</p>', not 'Acta Cryst. "
         "C60, m258'"},
        {"Literature Reference", "2001",
         "expected a text like '<j>...</j><v>...</v><y>...</y><p>...-...</p>', not '2001'"},
        {"Literature Reference", "Acta",
         "expected a text like '<j>...</j><v>...</v><y>...</y><p>...-...</p>', not 'Acta'"},
        {"Cross References", "CSD ABCDEF",
         "expected references like 'Same structure CSD ABCDEF', not 'CSD ABCDEF'"},
        {"R-Factor (%)", "low", "expected a number of per cent, not 'low'"},
    };
    for (const auto& c : cases) EXPECT_EQ(refusal(cell, c.label, c.text), c.reason) << c.label;
}

TEST(field_edit, UnderstandsWhatIsUsuallyTyped) {
    const struct {
        const char *label, *text, *shown;
    } cases[] = {
        {"Temperature (K)", "120(1) K", "120(1)"},
        {"Color", "\u7D05 \u00E9", "&#x7D05; \\'e"},
        {"Author(s)", "P.O\u2019Neil", "P.O\u2019Neil"},
        {"R-Factor (%)", "3.07 %", "3.07"},
        {"wR-Factor (%)", "10.5%", "10.5"},
        {"Density (author)", "1.234 g/cm3", "1.234"},
        {"Measured Density", "2.80 g/cm3", "2.80 g/cm\u00B3"},
        {"Absorption Coefficient", "0.55 mm-1", "0.55 mm\u207B\u00B9"},
        {"Crystal Size", "0.3 x 0.2 x 0.1 mm", "0.3 \u00D7 0.2 \u00D7 0.1 mm"},
        {"Crystal Size", "0.3 * 0.2 mm", "0.3 \u00D7 0.2 mm"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shown(edited("data_x\n_cell_length_a 5", c.label, c.text), c.label), c.shown);
    }
}

TEST(field_edit, FindsThePartsOfATextThatMayBeOne) {
    const char* const cases[][3] = {
        {"Absorption Correction", "multi-scan, T 0.5 to 0.9",
         "_exptl_absorpt_correction_T_max 0.9"},
        {"Absorption Correction", "T up to 0.9", "_exptl_absorpt_correction_T_max 0.9"},
        {"Melting Point", "> 340 K, < 350 K", "_chemical_melting_point_gt 340"},
    };
    for (const auto& [label, text, line] : cases) {
        EXPECT_THAT(edited("data_x", label, text), testing::HasSubstr(line));
    }
}

TEST(field_edit, KeepsTheRowsOfAuthors) {
    const std::string file =
        "data_global\n_journal_page_first 12\nloop_\n_publ_author_name\n_publ_author_address\n"
        "'Smith, John' here\n'M\\\"uller, Karl' 'there, 5'\nWho ?\ndata_a\n_cell_length_a 5\n"
        "data_b\n_cell_length_a 6\n";
    const struct {
        const char *text, *rows;
    } cases[] = {
        {"K.M\u00FCller, J.Smith, Who",
         "'M\\\"uller, Karl' 'there, 5'\n'Smith, John' here\nWho ?\n"},
        {"J.Smithe, A.New, Who", "'Smithe, John' here\n'New, A.' 'there, 5'\nWho ?\n"},
        {"J.Smith, A.New, K.M\u00FCller, Who",
         "'Smith, John' here\n'New, A.' ?\n'M\\\"uller, Karl' 'there, 5'\nWho ?\n"},
        {"Smith, John; M\u00FCller, K. X.", "'Smith, John' here\n'M\\\"uller, K. X.' 'there, 5'\n"},
        {"Smith, John; K.M\u00FCller; Who; R.Franklin",
         "'Smith, John' here\n'M\\\"uller, Karl' 'there, 5'\nWho ?\n'Franklin, R.' ?\n"},
        {"J.Mueller, K.Mueller", "'Mueller, J.' here\n'Mueller, Karl' 'there, 5'\n"},
        {"K.Muller, A.New", "'Muller, Karl' 'there, 5'\n'New, A.' ?\n"},
        {"John Smith, Rosalind Franklin", "'Smith, John' here\n'Franklin, Rosalind' 'there, 5'\n"},
    };
    for (const auto& c : cases) {
        EXPECT_THAT(edited(file, "Author(s)", c.text),
                    testing::HasSubstr(std::string("_address\n") + c.rows + "data_a"));
    }
}

TEST(CodedText, IsSaidInUtf8) {
    EXPECT_EQ(CodedText("\\a-H~2~O <i>x</i> \\'e \\\\times y &lt; 1 \\%").in_utf8(),
              "\u03B1-H~2~O <i>x</i> \u00E9 \u00D7 y &lt; 1 \u00B0");
}
