#include "tasks/Term.h"

#include <gmock/gmock.h>

#include "entries/EntryReader.h"
#include "tasks/AskedCell.h"
#include "tasks/EntryFinder.h"
#include "tasks/TermKind.h"
#include "tasks/View.h"
#include "tasks/numbers_in_text.h"
#include "tasks/row_named.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::string_view cif = R"(data_x
_cell_length_a 11.1412(3)
_cell_length_b 22.35
_cell_length_c 9.7
_cell_angle_alpha 90
_cell_angle_beta 101.5
_cell_angle_gamma 90
_cell_volume 2367.1(4)
_symmetry_space_group_name_H-M 'P 1 21/n 1'
_chemical_formula_sum 'C22 H20 N2'
_chemical_name_systematic 'bis(\b-D-glucose) tetrahydrate, hep-1-ene'
_diffrn_ambient_temperature 100(2)
_exptl_crystal_colour 'C22 and C220, P21/n'
_publ_section_title 'Acetates of \h^5^-ligands: structure 21569'
_journal_name_full 'Acta Crystallographica Section C'
_journal_year 2003
_journal_volume 59
_journal_page_first o1569
_journal_paper_doi 10.1107/S0108270104008741
_publ_author_name 'C\'isa\<rov\'a, I.'
)";

/// "FIELD=WHAT" for each match.
std::vector<std::string> found(const std::vector<std::string>& written,
                               const TermSettings& settings = {}, const std::string& labels = "") {
    const EntryReader reader(cif);
    const CifEntry entry = reader[0];
    const std::vector<Field> wanted =
        labels.empty() ? row_named(views(), "internal")->fields() : fields_named(labels);
    EntryFinder::Terms terms;
    for (const std::string& term : written) terms.push_back(make_term(term, settings));
    const EntryFinder finder(wanted, std::move(terms), settings.folding);
    const EntryFields fields = finder.find(entry);
    EXPECT_EQ(finder.is_in(entry), !fields.fields.empty());
    EXPECT_THAT(fields.problems, IsEmpty());
    std::vector<std::string> matches;
    for (const EntryField& field : fields.fields) {
        for (const FieldMatch& match : field.matches) {
            matches.push_back(field.label + ("=" + match.shown));
        }
    }
    return matches;
}

TEST(Term, FindsWhatItMeans) {
    const struct {
        const char* term;
        std::vector<std::string> matches;
    } cases[] = {
        {"hydrate", {"Compound Name=hydrate"}},
        {"rate h", {}},
        {"cisarova", {"Author(s)=Císařová"}},
        {"eta", {"Title=eta", "Title=η"}},
        {"η", {"Title=η"}},
        {"beta-d GLUCOSE", {}},
        {"beta–D-GLUCOSE", {"Compound Name=β-D-glucose"}},
        {"acta  crystallographica\nsection C",
         {"Literature Reference=Acta Crystallographica Section C"}},
        {"11.141", {"Cell Lengths=11.1412(3)", "Reduced Cell Lengths=11.1412"}},
        {"11.1412(3)", {"Cell Lengths=11.1412(3)"}},
        {"11.1412(4)", {}},
        {"11.14120", {"Cell Lengths=11.1412(3)", "Reduced Cell Lengths=11.1412"}},
        {"11.14", {"Cell Lengths=11.1412(3)", "Reduced Cell Lengths=11.1412"}},
        {"1569", {"Literature Reference=1569"}},
        {"2367", {"Cell Volume=2367.1(4)", "Reduced Cell Volume=2366.87"}},
        {"C22", {"Color=C22", "Formula=C22"}},
        {"C22H20", {"Formula=C22", "Formula=H20"}},
        {"C22H21", {}},
        {"P-1", {}},
        {"P21/n", {"Space Group=P 1 21/n 1", "Color=P21/n"}},
        {"P21/c", {}},
        {"group:P21/c", {"Space Group=P 1 21/n 1"}},
        {"group:14", {"Space Group=P 1 21/n 1"}},
        {"formula:N2C22", {"Formula=C22", "Formula=N2"}},
        {"formula:N", {}},
        {"author:'Císařová'", {}},
        {"author:Cisarova, Ivana", {"Author(s)=I.Císařová"}},
        {"journal:59", {}},
        {"journal:acta", {"Literature Reference=Acta"}},
        {"year:2001-2003", {"Literature Reference=2003"}},
        {"year:2004-", {}},
        {"doi:https://doi.org/10.1107/s0108270104008741", {"DOI=10.1107/S0108270104008741"}},
        {"volume:2300-2400", {"Cell Volume=2367.1(4)"}},
        {"temperature:-99", {}},
        {"temperature:100", {"Temperature (K)=100(2)"}},
        {"cell:9.7,11.1,22.4",
         {"Cell Lengths=a 11.1412(3) b 22.35 c 9.7",
          "Reduced Cell Lengths=a 9.7 b 11.1412 c 22.35"}},
        {"cell:9.7,11.1,22.4~0.01", {}},
        {"no:prefix", {}},
    };
    for (const auto& c : cases) {
        EXPECT_THAT(found({c.term}), testing::UnorderedElementsAreArray(c.matches)) << c.term;
    }
}

TEST(Term, IsFoldedWholeAndCombinedAsAskedFor) {
    TermSettings exact;
    exact.folding = {false, false, false, false, false, false, false, false};
    EXPECT_THAT(found({"cisarova"}, exact), IsEmpty());
    EXPECT_THAT(found({"Císařová"}, exact), ElementsAre("Author(s)=Císařová"));
    EXPECT_THAT(found({"hydrate"}, {{}, true}), IsEmpty());
    EXPECT_THAT(found({"tetrahydrate"}, {{}, true}), ElementsAre("Compound Name=tetrahydrate"));
    EXPECT_THAT(found({"cisarova", "hydrate"}),
                ElementsAre("Compound Name=hydrate", "Author(s)=Císařová"));
    EXPECT_THAT(found({"cisarova", "nowhere"}), IsEmpty());
    EXPECT_THAT(found({"cisarova", "year:2003"}, {}, "Author(s)"),
                ElementsAre("Author(s)=Císařová", "Literature Reference=2003"));
}

TEST(Term, RefusesWhatIsNone) {
    for (const char* const text :
         {"", " ", "\u00A0\u200B", "\u00AD", "year:", "year:now", "volume:2-1", "cell:1,2",
          "cell:1,2,3~x", "cell:0,1,2", "group:Q5", "group:231", "formula:3"}) {
        EXPECT_THROW(make_term(text, {}), BadTerm) << text;
    }
    EXPECT_EQ(nearest_term_kind("autor:Smith"), "author");
    EXPECT_EQ(nearest_term_kind("1:1 complex"), "");
}

TEST(SearchedNumber, StandsForThoseThatRoundToIt) {
    const struct {
        const char *number, *text;
        bool may_stand_for;
    } cases[] = {
        {"11.141", "11.1412(3)", true}, {"11.141", "11.141(2)", true},
        {"11.141", "11.1415", false},   {"11.141", "11.1405", true},
        {"11.141", "11.14", false},     {"90", "90.00", true},
        {"90.00", "90", true},          {"2", "1.54", false},
        {"1569", "1568.7(4)", true},    {"1569", "21569", false},
        {"1569", "15690", false},       {"-5", "-5", true},
        {"-5", "2-5", false},           {"5", "2-5", true},
        {"0.05", ".05", true},          {"100", "99.7", true},
        {"2.2", "2.2.1", true},         {"2.1", "2.2.1", false},
        {"1.000", "0.9996", true},
    };
    for (const auto& c : cases) {
        const SearchedNumber number = whole_number(c.number).value();
        bool found = false;
        for (const SearchedNumber& other : numbers_in(c.text)) {
            found = found || number.may_stand_for(other);
            if (!number.may_stand_for(other)) continue;
            bool begins = false;
            for (const std::string& digits : number.first_digits()) {
                begins = begins || skeleton_of(c.text).find(digits) != std::string::npos;
            }
            EXPECT_TRUE(begins) << c.number << " in " << c.text;
        }
        EXPECT_EQ(found, c.may_stand_for) << c.number << " in " << c.text;
    }
}

TEST(AskedCell, GoesWithItsAnglesInAnyOrder) {
    const auto cell = AskedCell::read("9.7, 11.14 22.35, 90,90,101.5 ~0.1").value();
    EXPECT_FALSE(cell.is_near({11.141, 22.35, 9.7}, {101.5, 90, 90}));
    EXPECT_TRUE(cell.is_near({11.141, 9.7, 22.35}, {90, 90, 101.5}));
    EXPECT_TRUE(cell.is_near({22.35, 9.7, 11.141}, {101.5, 90, 90}));
}

}  // namespace
