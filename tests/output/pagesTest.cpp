#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <set>

#include "entries/EntryReader.h"
#include "markup/RichTextTarget.h"
#include "output/ComparisonPage.h"
#include "output/CopiedForms.h"
#include "output/EntryCards.h"
#include "output/EntryPage.h"
#include "output/PageRichTextGenerator.h"
#include "output/html_text.h"
#include "output/reader_fields.h"
#include "tasks/View.h"
#include "tasks/row_named.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

std::vector<EntryField> fields_of(const EntryReader& reader, std::size_t index = 0) {
    return EntryFields(reader[index], fields()).fields;
}

std::string page_of(const std::string& cif) {
    const EntryReader reader(cif);
    EntryPage page;
    std::string text = page.head("Entries");
    for (std::size_t i = 0; i < reader.size(); ++i) {
        text += page.add(
            page.entry("folder/f.cif", std::string(reader[i].block.name()), fields_of(reader, i)));
    }
    return text + page.foot();
}

/// What stands in that attribute of elements, in their order.
std::vector<std::string> values_of(const std::string& page, const std::string& attribute) {
    const std::string before = " " + attribute + "=\"";
    std::vector<std::string> values;
    for (std::size_t at = 0; (at = page.find(before, at)) != std::string::npos;) {
        at += before.size();
        values.push_back(page.substr(at, page.find('"', at) - at));
    }
    return values;
}

const std::string cell =
    "_cell_length_a 9.0847(5)\n_cell_length_b 9.1602(5)\n_cell_length_c 9.5660(5)\n"
    "_cell_angle_alpha 103.7\n_cell_angle_beta 116.6\n_cell_angle_gamma 106.2\n"
    "_cell_volume 619.9\n_symmetry_space_group_name_H-M ";

}  // namespace

TEST(ReaderFields, HaveEachFieldOnce) {
    std::multiset<std::string> known, all;
    for (const ReaderField& field : reader_fields()) known.insert(field.label);
    for (const Field& field : fields()) all.insert(field.label);
    EXPECT_EQ(known, all);
}

TEST(EntryCards, SayNothingTwice) {
    const std::string cif =
        "data_a\n" + cell +
        "'P -1'\n_chemical_name_systematic urea\n_chemical_name_common urea\n"
        "_chemical_formula_sum 'C H4 N2 O'\n_chemical_formula_moiety 'C H4 N2 O'\n"
        "_diffrn_ambient_temperature 293(2)\n_exptl_crystal_size_max 0.3\n"
        "_journal_name_full 'Acta Cryst.'\n_journal_year 2004\n_journal_volume 60\n"
        "_journal_page_first 12\n";
    const EntryReader reader(cif);
    const std::vector<EntryField> fields = fields_of(reader);
    const EntryCards cards(fields);
    EXPECT_STREQ(cards.name()->field->label, "Compound Name");
    EXPECT_EQ(cards.year(), "2004");
    EXPECT_EQ(cards.first_length(), "9.0847");
    EXPECT_TRUE(cards.is_reduced());
    ASSERT_EQ(cards.cell().size(), 3U);
    EXPECT_EQ(cards.cell()[0].values.size(), 3U);
    EXPECT_EQ(cards.cell()[0].values[1].characters(), "9.1602(5)");
    EXPECT_STREQ(cards.cell()[2].row.unit, "Å³");
    std::vector<std::string> rows;
    for (const EntryCards::Card& card : cards.cards()) {
        for (const EntryCards::Row& row : card.rows) {
            rows.push_back(std::string(card.title) + ": " + row.shown + row.unit);
        }
    }
    EXPECT_THAT(rows, ElementsAre("Crystal: Space group", "Crystal: Sohncke group", "Crystal: Size",
                                  "Experiment: TemperatureK"));
    const std::string other_cif = "data_a\n" + cell + "'C 2'\n";
    const EntryReader centred(other_cif);
    const std::vector<EntryField> others = fields_of(centred);
    EXPECT_EQ(EntryCards(others).cell().size(), 6U);
}

TEST(EntryPage, GivesEachEntryAndFieldAnAnchor) {
    const std::string entry = "_exptl_crystal_colour red\n_chemical_name_common ";
    const std::string page =
        page_of("data_a\n" + entry + "urea\ndata_A-2\n" + entry + "'id=\"a.color'\ndata_a-2\n" +
                entry + "x\n_cod_database_code a\n");
    const std::vector<std::string> ids = values_of(page, "id");
    EXPECT_EQ(std::set<std::string>(ids.begin(), ids.end()).size(), ids.size());
    for (const std::string& link : values_of(page, "href")) {
        EXPECT_THAT(ids, testing::Contains(link.substr(1)));
    }
    EXPECT_THAT(ids, testing::IsSupersetOf({"a", "a.color", "A-2.color", "a-2.color"}));
    EXPECT_THAT(page, Not(HasSubstr("folder")));
}

TEST(EntryPage, ShowsWhatWouldActAsText) {
    const std::string acts = "'</script>\"<img src=x onerror=alert(1)>'";
    const std::string page =
        page_of("data_<b>\n_chemical_name_common " + acts + "\n_exptl_crystal_colour " + acts +
                "\n_journal_paper_doi 'javascript:alert(1)/10.1'\ndata_b\n_journal_paper_doi "
                "'10.1/a\"b c<d>'\n_publ_section_title " +
                acts + "\n_chemical_formula_moiety " + acts + "\n");
    const std::string parts =
        page.substr(page.find("<main"), page.find("</main>") - page.find("<main"));
    EXPECT_THAT(parts, Not(HasSubstr("<img")));
    EXPECT_THAT(parts, Not(HasSubstr("<script")));
    EXPECT_THAT(parts, Not(HasSubstr("href=\"javascript")));
    EXPECT_THAT(parts, HasSubstr("href=\"https://doi.org/10.1/a%22b%20c%3Cd%3E\""));
}

TEST(CopiedForms, AreThoseOfTheTargets) {
    const CopiedForms copied;
    PageRichTextGenerator page;
    const struct {
        const char *source, *text;
    } cases[] = {{"plain", "red plate"},
                 {"plain", "a & b_c \"d\""},
                 {"plain", "fine-focus"},
                 {"plain", "1. Zinc"},
                 {"plain", "12.5(3)"},
                 {"cif-text", "\\a-F^2^ <i>x</i> `a'"},
                 {"tevo-name", "alpha-D-gluco!2$"},
                 {"formula", "C6 H12"},
                 {"spacegroup", "P<bar>1</bar>"},
                 {"cell-lengths", "a 1 b 2 c 3"}};
    for (const auto& [source, text] : cases) {
        const TextItem item(row_named(sources(), source)->make_finder(), text);
        const std::string shown = item.mark_up_text(page);
        const std::string forms = copied.of(item, shown);
        const auto json = nlohmann::json::parse(forms.empty() ? "{}" : forms);
        for (const char* const name :
             {"unicode", "html5", "latex", "markdown", "tevo", "cif-text"}) {
            const auto as = [&](const char* target) {
                return item.mark_up_text(*row_named(rich_text_targets(), target)->make_generator());
            };
            const bool is_html = std::string_view(name) == "html5";
            const std::string otherwise = is_html ? shown : json.value("unicode", shown);
            EXPECT_EQ(json.value(name, otherwise), as(name)) << text;
        }
        EXPECT_EQ(nlohmann::json::parse(copied.of(item, "")).count("unicode"), 1U) << text;
    }
    const TextItem plain(row_named(sources(), "plain")->make_finder(), "red plate");
    EXPECT_EQ(copied.of(plain, "red plate"), "");
}

TEST(ComparisonPage, LeadsFromItsSummaryToWhatDiffersFirst) {
    const EntryReader left("data_a\n_exptl_crystal_colour red\n_exptl_crystal_description <b>\n"),
        right("data_a\n_exptl_crystal_colour red\n_exptl_crystal_description plate\n");
    const std::vector<Field> wanted = fields_named("Color,Habit");
    const EntryTexts one("d/l.cif", left[0], wanted), other("d/r.cif", right[0], wanted);
    ComparisonPage page;
    ComparisonSummary summary;
    for (int i = 0; i < 2; ++i) {
        const EntryComparison compared(one, i == 0 ? one : other, wanted, {}, true);
        summary.add(one, i == 0 ? one : other, compared);
        page.add(page.comparison({"d/l.cif", "a"}, {"d/r.cif", "a"}, PairingReason::identifier,
                                 compared));
    }
    const std::string text = page.foot_with(summary, wanted);
    EXPECT_THAT(text, HasSubstr("<a href=\"#a-2.habit\">Habit</a></th><td>1</td>"));
    EXPECT_THAT(text, HasSubstr("<summary>1 field is equal in all entries</summary>"));
    EXPECT_THAT(text,
                HasSubstr("<tbody class=\"field different\" id=\"a-2.habit\" tabindex=\"-1\">"));
    const std::size_t differs = text.find("id=\"a-2.habit\""),
                      equal = text.find("id=\"a-2.color\"");
    EXPECT_LT(differs, text.find("<details>", differs));
    EXPECT_LT(text.find("<details>", differs), equal);
}
