#include "suppliers/FieldTextSupplier.h"

#include <gmock/gmock.h>

#include <stdexcept>

#include "suppliers/AccessionDateSupplier.h"
#include "suppliers/RFactorSupplier.h"
#include "suppliers/SohnckeGroupSupplier.h"
#include "suppliers/SynonymSupplier.h"
#include "suppliers/Z_ZPrimeSupplier.h"

using testing::StrEq;
using testing::ThrowsMessage;

using Names = LMRFieldNames;
using Entry = THandle<CrystalStructureDatabaseEntry>;

namespace {

std::string text(const Entry& entry, Names::TextID field) {
    return FieldTextSupplier(field).text(entry);
}

}  // namespace

TEST(FieldTextSupplier, AnEntryThatKnowsNothingHasEmptyTexts) {
    const auto entry = make_handle<CrystalStructureDatabaseEntry>();
    std::vector<Names::TextID> fields;
    Names::internal_fields(fields);
    for (const Names::TextID field : fields) {
        EXPECT_EQ(text(entry, field), field == Names::sohncke_group ? "unknown" : "") << field;
    }
    EXPECT_THAT([] { FieldTextSupplier(Names::color).text({}); },
                ThrowsMessage<std::runtime_error>(StrEq("null handle error")));
    EXPECT_THROW(FieldTextSupplier(static_cast<Names::TextID>(63)), std::invalid_argument);
}

TEST(FieldTextSupplier, WritesTheLayoutsThatFindersRead) {
    const auto entry = make_handle<CrystalStructureDatabaseEntry>();
    entry->crystal_info->cell =
        Cell{{10.234, 0.005}, {7}, {9.5, 0.012, 3}, {{90, 0, 2}}, {{100.5, 0.03}}, {{90}}};
    entry->crystal_info->reduced_cell = ReducedCell{5, 6.25, 7.123456789, 60, 70, 80.5, 200};
    entry->crystal_info->z = 4;
    entry->experimental_info->temperature = UncertainValue{293, 2};
    entry->experimental_info->average_sigma = UncertainValue{0.0035};
    entry->experimental_info->radiation_probe = "X-ray";
    entry->chemical_info->classifiers = {"organic", "drug"};
    entry->publication->authors = {"A.B.Smith", "C.Jones"};
    entry->publication->year = "2001";
    entry->crystal_info->molecules.atoms.resize(3);
    entry->deposition_info->depositions = {{DepositionInfo::kovr, "1"},
                                           {DepositionInfo::journal, "2"}};
    entry->cross_reference_info->references = {{DatabaseCrossReference::superseded, "COD 7"}};
    const struct {
        Names::TextID field;
        const char* text;
    } cases[] = {
        {Names::cell_lengths, "a 10.234(5) b 7 c 9.500(12)"},
        {Names::cell_angles, "a 90.00 b 100.50(3) g 90"},
        {Names::reduced_cell_lengths, "a 5 b 6.25 c 7.12346"},
        {Names::reduced_cell_angles, "a 60 b 70 g 80.5"},
        {Names::reduced_cell_volume, "200"},
        {Names::z_zprime, "Z: 4 Z': 0"},
        {Names::temperature, "293(2)"},
        {Names::average_sigma, "0.0035"},
        {Names::radiation_probe, "X-ray"},
        {Names::classifiers, "organic; drug"},
        {Names::authors, "A.B.Smith, C.Jones"},
        {Names::literature_reference, "<j></j><v></v><y>2001</y><p></p>"},
        {Names::number_of_coordinates, "3"},
        {Names::deposition_numbers, "KOVR 1; Journal 2"},
        {Names::cross_references, "Superseded COD 7"},
    };
    for (const auto& c : cases) EXPECT_EQ(text(entry, c.field), c.text) << Names::text(c.field);
    entry->publication->year = "";
    entry->publication->journal = "Acta";
    EXPECT_EQ(text(entry, Names::literature_reference), "<j>Acta</j><v></v><y></y><p></p>");
}

TEST(FieldTextSupplier, TagsScrewAndInversionAxes) {
    const auto entry = make_handle<CrystalStructureDatabaseEntry>();
    const std::pair<const char*, const char*> cases[] = {
        {"P 1 21/c 1", "P2<sub>1</sub>/c"}, {"P 1 1 2/b", "P112/b"},
        {"P -1", "P<bar>1</bar>"},          {"P 63/m m c", "P6<sub>3</sub>/mmc"},
        {"F d -3 m", "Fd<bar>3</bar>m"},    {"P 1 1 1", "P111"},
    };
    for (const auto& [symbol, tagged] : cases) {
        entry->crystal_info->spacegroup.symbol = symbol;
        EXPECT_EQ(text(entry, Names::space_group), tagged);
    }
}

TEST(SimpleSuppliers, WriteShortValues) {
    const auto entry = make_handle<CrystalStructureDatabaseEntry>();
    EXPECT_EQ(AccessionDateSupplier().text(entry), "");
    entry->editors_info->accession_date = {2004, 7, 19};
    EXPECT_EQ(AccessionDateSupplier().text(entry), "2004-07-19");
    const std::pair<double, const char*> r_factors[] = {
        {0, ""}, {1e-7, ""}, {-1e-7, ""}, {2e-7, "2e-07"}, {5.2, "5.2"}, {12.3456789, "12.3457"}};
    for (const auto& [r_factor, shown] : r_factors) {
        entry->experimental_info->r_factor = r_factor;
        EXPECT_EQ(RFactorSupplier().text(entry), shown);
    }
    EXPECT_EQ(Z_ZPrimeSupplier().text(entry), "Z: 0 Z': 0");
    entry->crystal_info->z = 4;
    entry->crystal_info->z_prime = 0.5;
    EXPECT_EQ(Z_ZPrimeSupplier().text(entry), "Z: 4 Z': 0.5");
    EXPECT_EQ(SynonymSupplier().text(entry), "");
    entry->chemical_info->synonyms = {"one"};
    EXPECT_EQ(SynonymSupplier().text(entry), "one");
    entry->chemical_info->synonyms.emplace_back("two");
    EXPECT_EQ(SynonymSupplier().text(entry), "one; two");
    const std::pair<int, const char*> groups[] = {{0, "unknown"}, {231, "unknown"}, {-1, "unknown"},
                                                  {1, "yes"},     {2, "no"},        {19, "yes"},
                                                  {230, "no"}};
    for (const auto& [number, answer] : groups) {
        EXPECT_EQ(SohnckeGroupSupplier().text(Spacegroup{"", number}), answer) << number;
    }
}
