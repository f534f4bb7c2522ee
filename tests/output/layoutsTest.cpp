#include "output/layouts.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "entries/EntryReader.h"
#include "finders/InputTextStyleFinder.h"
#include "output/ReportWriter.h"
#include "output/TableLayout.h"
#include "tasks/EntryFinder.h"
#include "tasks/TermKind.h"
#include "tasks/View.h"
#include "tasks/row_named.h"
#include "tests/HostileReports.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string shown(const std::string& cif, const char* output, const std::string& labels,
                  const std::string& term = "", bool own_file = false) {
    const EntryReader reader(cif);
    EntryFinder::Terms terms;
    if (!term.empty()) terms.push_back(make_term(term, {}));
    const EntryFinder finder(fields_named(labels), std::move(terms), {});
    const EntryFields fields(reader[0], fields_named(labels), term.empty() ? nullptr : &finder);
    EXPECT_TRUE(fields.problems.empty());
    const auto layout =
        make_entry_layout(*row_named(show_outputs(), output), own_file, fields_named(labels));
    const std::string head = layout->head("Entries");
    const std::string body = layout->add(layout->entry("f", "b", fields.fields));
    return head + body + layout->foot();
}

std::string compared(const std::string& left, const std::string& right, const char* output,
                     const std::string& labels, bool all = false) {
    const EntryReader left_reader(left), right_reader(right);
    const std::vector<Field> fields = fields_named(labels);
    const EntryComparison comparison({"l", left_reader[0], fields}, {"r", right_reader[0], fields},
                                     fields, {}, all);
    EXPECT_TRUE(comparison.problems.empty());
    const auto layout = make_comparison_layout(*row_named(compare_outputs(), output));
    std::string document = layout->head("Both");
    document += layout->add(
        layout->comparison({"l\u202E", "a"}, {"r", "b"}, PairingReason::name, comparison));
    document += layout->add(layout->only({"r", "c"}, Verdict::only_right));
    return document + layout->foot();
}

const std::string cif =
    "data_a\n_chemical_name_common acetone\n_diffrn_ambient_temperature 293(2)\n"
    "_exptl_crystal_colour red\n_symmetry_space_group_name_H-M 'P -1'\n_refine_ls_R_factor_gt .03";

}  // namespace

TEST(EntryLayout, SetsTitlesAndRowsAsTheTargetWantsThem) {
    const std::string labels = "Space Group,R-Factor (%)";
    EXPECT_EQ(shown(cif, "tevo", labels), "f: data_b\n    Space Group: P1\n    R-Factor (%): 3\n");
    EXPECT_EQ(shown(cif, "html5", "Synonym,Color", "aceton"),
              "f: data_b\n    Synonym: <b><span style=\"color:blue\">aceton</span></b>e\n"
              "        found: 'aceton'\n"
              "    Color: red\n");
    const std::string page = shown(cif, "html5", "Color,Synonym", "", true);
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n"));
    EXPECT_THAT(page, HasSubstr("<title>Entries</title>"));
    EXPECT_THAT(page,
                HasSubstr("data-field=\"Color\"><dt><a class=\"label\" href=\"#b.color\">Color"
                          "</a></dt><dd><span class=\"value\">red</span></dd>"));
    const std::string unnamed = shown("data_a\n_publ_section_title x", "html5", "Title", "", true);
    EXPECT_THAT(unnamed, HasSubstr(".top\"><bdi>b</bdi></h2>"));
}

const std::string cell =
    "data_b\n_cell_length_a 1.5(1)\n_cell_length_b 2\n_cell_length_c 3\n"
    "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n_cell_volume 9\n"
    "_chemical_name_systematic 'a #'\n_journal_paper_doi 10.1/a%b\n"
    "_exptl_absorpt_coefficient_mu 2\n_refine_ls_R_factor_gt .03\n";

TEST(EntryReport, HasSectionsListsAndTables) {
    const std::string labels =
        "R-Factor (%),Cell Volume,Cell Lengths,DOI,Compound Name,Absorption Coefficient";
    EXPECT_EQ(shown(cell, "latex", labels, "1.5"),
              "\\section*{a \\#}\n\\begin{description}\n"
              "\\item[{DOI}] \\ifdefined\\href\\href{https://doi.org/10.1/a\\%25b}{10.1/a\\%b}"
              "\\else 10.1/a\\%b\\fi\n"
              "\\item[{File}] f, data\\_b\n\\end{description}\n\\subsection*{Crystal}\n"
              "\\noindent\\begin{tabular}{@{}lrrrl@{}}\n"
              "a, b, c & \\textbf{\\textcolor{blue}{1.5(1)}} & 2 & 3 & Å\\\\\n"
              " & \\multicolumn{4}{l@{}}{found: '1.5' is 1.5(1)}\\\\\n"
              "V & \\multicolumn{3}{l}{9} & Å\\textsuperscript{3}\\\\\n\\end{tabular}\\par\n"
              "\\subsection*{Experiment}\n\\begin{description}\n"
              "\\item[{Absorption coefficient}] 2~mm\\textsuperscript{-1}\n\\end{description}\n"
              "\\subsection*{Refinement}\n\\begin{description}\n\\item[{R}] 3~\\%\n"
              "\\end{description}\n");
    EXPECT_EQ(shown(cell, "markdown", labels),
              "## a \\#\n\n- DOI: [10.1/a%b](<https://doi.org/10.1/a%25b>)\n- File: f, data\\_b\n\n"
              "### Crystal\n\n<table>\n"
              "<tr><th>a, b, c</th><td>1.5(1)</td><td>2</td><td>3</td><td>Å</td></tr>\n"
              "<tr><th>V</th><td colspan=\"3\">9</td><td>Å<sup>3</sup></td></tr>\n</table>\n\n"
              "### Experiment\n\n- Absorption coefficient: 2 mm<sup>-1</sup>\n\n"
              "### Refinement\n\n- R: 3 %\n\n");
    const ReportWriter markdown(*report_medium_of(*row_named(rich_text_targets(), "markdown")));
    EXPECT_EQ(markdown.plain("a\n\n# b", ReportWriter::Place::cell), "a&#10;&#10;# b");
}

TEST(JsonLayout, TellsTextsAsTheyAreShownAndPlaces) {
    const EntryReader reader("data_a _publ_section_title '\\a-F^2^'");
    const std::vector<Field> title = fields_named("Title");
    const EntryFields fields(reader[0], title);
    const auto layout = make_entry_layout(*row_named(show_outputs(), "json"), false, title,
                                          TextPositions{DisplayedText::characters, true});
    const std::string json = layout->entry("f", "a", fields.fields).text;
    EXPECT_THAT(json, HasSubstr("\"text\": \"\\\\a-F^2^\",\n   \"displayed\": \"α-F2\""));
    EXPECT_THAT(json, HasSubstr("\"valign\": 1,\n     \"from\": 3,\n     \"to\": 4"));
}

TEST(TableLayout, HasAColumnForEachFieldAndNoFormulas) {
    const std::string labels = "Color,R-Factor (%),Space Group,Synonym";
    EXPECT_EQ(
        shown(cif, "csv", labels),
        "File,Block,Color,R-Factor (%),Space Group,Synonym\r\nf,b,red,3,P1\u0305,acetone\r\n");
    EXPECT_EQ(shown("data_a\n", "tsv", "Synonym,Color"), "File\tBlock\tSynonym\tColor\nf\tb\t\t\n");
    const struct {
        const char *text, *csv, *tsv;
    } cells[] = {
        {"a,b", "\"a,b\"", "a,b"},
        {"say \"a\"", "\"say \"\"a\"\"\"", "say \"a\""},
        {"a\nb\\", "\"a\nb\\\"", "a\\nb\\\\"},
        {"=1+1", "'=1+1", "=1+1"},
        {"-2+3", "'-2+3", "-2+3"},
        {"@a", "'@a", "@a"},
        {"-", "'-", "-"},
        {"+1(", "'+1(", "+1("},
        {"-5", "-5", "-5"},
        {"-1.25(3)", "-1.25(3)", "-1.25(3)"},
        {"+.5e-3", "+.5e-3", "+.5e-3"},
        {"a-5", "a-5", "a-5"},
    };
    for (const auto& [text, csv, tsv] : cells) {
        const std::vector<EntryField> fields{
            {"L", "G", TextItem(make_handle<InputTextStyleFinder>(), text)}};
        TableLayout commas(TableLayout::Form::csv, {"K", "L"}), tabs(TableLayout::Form::tsv, {"L"});
        EXPECT_EQ(commas.entry("=f", "b", fields).text, std::string("'=f,b,,") + csv + "\r\n");
        EXPECT_EQ(tabs.entry("f", "b", fields).text, std::string("f\tb\t") + tsv + "\n");
    }
}

TEST(JsonLayout, HoldsRunsAndNothingThatActs) {
    const std::string json_text = shown(
        "data_a\n_symmetry_space_group_name_H-M 'P -1'\n_exptl_crystal_colour \"\xE9\"\n"
        "_exptl_crystal_description '\u202E\x7F\u009B</script><!--\u2028'\n",
        "json", "Space Group,Color,Habit");
    const auto json = nlohmann::json::parse(json_text);
    const auto& fields = json.at(0).at("fields");
    EXPECT_EQ(json.at(0).at("block"), "b");
    EXPECT_EQ(fields.at(0).at("label"), "Space Group");
    EXPECT_EQ(fields.at(0).at("group"), "Cell");
    EXPECT_EQ(fields.at(0).at("text"), "P<bar>1</bar>");
    std::string visible;
    for (const auto& atom : fields.at(0).at("atoms")) {
        if (!atom.value("invisible", false)) visible += atom.at("text").get<std::string>();
    }
    EXPECT_EQ(visible, "P1");
    EXPECT_EQ(fields.at(1).at("text"), "\uFFFD");
    EXPECT_EQ(fields.at(2).at("text"), "\u202E\x7F\u009B</script><!--\u2028");
    EXPECT_THAT(json_text, HasSubstr("\"\\u202E\\u007F\\u009B<\\/script>\\u003C!--\\u2028\""));
}

const std::string other =
    "data_b\n_chemical_name_common acetane\n_diffrn_ambient_temperature 293.2(2)\n"
    "_exptl_crystal_description block\n";
const std::string labels = "Synonym,Temperature (K),Color,Habit";

TEST(ComparisonLayout, ShowsBothSidesAndWhy) {
    EXPECT_EQ(compared(cif, other, "unicode", labels, true),
              "l<U+202E> data_a and r data_b (same compound name)\n"
              "< Synonym: acet[-o-]ne\n> Synonym: acet{+a+}ne\n  why: 'o' against 'a'\n"
              "~ Temperature (K): [-293(2)-]\n~ Temperature (K): {+293.2(2)+}\n"
              "  why: equivalent: 293(2) against 293.2(2), 0.1 \u03C3 apart\n"
              "< Color (only left): red\n> Habit (only right): block\n"
              "r data_c: only right\n");
    EXPECT_THAT(compared(cif, cif, "unicode", "Color", true),
                HasSubstr(")\n= Color: red\nr data_c"));
    const std::string page = compared(cif, other, "html5", "Synonym,Color");
    EXPECT_THAT(page, HasSubstr("<bdi>data_a</bdi> and <bdi>data_b</bdi>"));
    EXPECT_THAT(page, HasSubstr("<bdi>l&lt;U+202E&gt;</bdi> and <bdi>r</bdi>, same compound name: "
                                "2 fields differ"));
    EXPECT_THAT(page,
                HasSubstr("<td class=\"left\">acet<b><span class=\"red\">o</span></b>ne</td>"));
    EXPECT_THAT(page, HasSubstr("<td class=\"left\">red</td><td class=\"right\"><span class=\""
                                "none\">no text</span></td>"));
    EXPECT_THAT(page, HasSubstr("<bdi>r</bdi>, only right"));
}

TEST(ComparisonReport, HasWhatDiffersFirst) {
    EXPECT_THAT(compared(cif, other, "latex", "Synonym"),
                HasSubstr(" &\n\\raggedright acet\\textbf{\\textcolor[rgb]{0,0.545,0}{a}}ne"
                          "\\tabularnewline\n\\end{tabular}\\par\n\\nobreak"));
    const std::string second = cif + "\n_exptl_crystal_description block";
    EXPECT_EQ(compared(cif, second, "markdown", "Color,Habit", true),
              "## data\\_a and data\\_b\n\nl\\<U+202E\\> and r, same compound name: "
              "1 field differs\n\n<table>\n"
              "<tr><th>Field</th><th>Left</th><th>Right</th></tr>\n"
              "<tr><th>Habit</th><td>no text</td><td>block</td></tr>\n</table>\n\n"
              "### Equal fields\n\n- Color: red\n\n"
              "## Entries only right\n\nr, data\\_c\n\n");
}

TEST(ComparisonReport, KeepsItsStructureInLatexWhateverTextsSay) {
    const std::string structure = structure_of_latex(reports_with("harmless", "latex"));
    EXPECT_THAT(structure, StartsWith(" section begin{description} item"));
    for (const std::string& text : hostile_texts) {
        EXPECT_EQ(structure_of_latex(reports_with(text, "latex")), structure) << text;
    }
}

TEST(ComparisonLayout, TellsAllInJson) {
    const auto json = nlohmann::json::parse(compared(cif, other, "json", labels));
    const auto& pair = json.at(0);
    EXPECT_EQ(pair.at("left").at("block"), "a");
    EXPECT_EQ(pair.at("pairing"), "name");
    EXPECT_EQ(pair.at("verdict"), "different");
    const auto& synonym = pair.at("fields").at(0);
    EXPECT_EQ(synonym.at("right").at("displayed"), "acetane");
    EXPECT_EQ(synonym.at("findings").at(0),
              nlohmann::json::parse(R"({"kind": "text", "reason": "replacement",
                  "verdict": "different", "left": {"from": 4, "to": 5},
                  "right": {"from": 4, "to": 5}, "sentence": "'o' against 'a'"})"));
    const auto& temperature = pair.at("fields").at(1).at("findings").at(0);
    EXPECT_EQ(temperature.at("verdict"), "equivalent");
    EXPECT_EQ(temperature.at("right_number"), 293.2);
    EXPECT_EQ(temperature.at("limit"), 3);
    EXPECT_TRUE(pair.at("fields").at(2).at("right").is_null());
    EXPECT_TRUE(json.at(1).at("left").is_null());
    EXPECT_EQ(json.at(1).at("verdict"), "only-right");
}

TEST(ComparisonLayout, CountsInASummary) {
    const std::vector<Field> fields = fields_named("Synonym,Color,Space Group,Melting Point");
    const EntryReader left_reader(cif), right_reader(other);
    const EntryTexts left("l", left_reader[0], fields), right("r", right_reader[0], fields);
    ComparisonSummary summary;
    summary.add(left, right, {left, right, fields, {}, false});
    summary.add(left, left, {left, left, fields, {}, false});
    summary.add_only(Verdict::only_right);
    const auto told = [&](const char* output) {
        return make_comparison_layout(*row_named(compare_outputs(), output))
            ->summary(summary, fields);
    };
    EXPECT_EQ(told("unicode"),
              "                  equal  equivalent   different   only-left  only-right\n"
              "Entries               1           0           1           0           1\n"
              "Synonym               1           0           1           0           0\n"
              "Color                 1           0           0           1           0\n"
              "Space Group           1           0           0           1           0\n");
    const auto json = nlohmann::json::parse(told("json"));
    EXPECT_EQ(json.at("entries").at("only-right"), 1);
    EXPECT_EQ(json.at("fields").at(1).at("label"), "Color");
    EXPECT_EQ(json.at("fields").at(1).at("only-left"), 1);
    EXPECT_THAT(told("latex"), HasSubstr("\nEntries & 1 & 0 & 1 & 0 & 1\\\\\nSynonym & 1 & 0 & 1"));
    EXPECT_THAT(told("html5"), HasSubstr("<th scope=\"row\">Color</th><td>1</td>"));
}
