#include <exception>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/quantities.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "markup/TevoRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

using Entry = CrystalStructureDatabaseEntry;

constexpr auto chemical = &Entry::chemical_info;
constexpr auto crystal = &Entry::crystal_info;
constexpr auto experimental = &Entry::experimental_info;
constexpr auto publication = &Entry::publication;

template <auto record, auto field>
std::string& text_field(Entry& entry) {
    return (*(entry.*record)).*field;
}

std::string& identifier(Entry& entry) { return entry.identifier; }

/// An item whose text is shown as it stands, on one line, numbers with their unit behind them.
struct TextRow {
    std::string_view tag;
    std::string& (*field)(Entry& entry);
    const char* unit;
};

// Where several items fill one field, the first that has a value does.
constexpr TextRow text_rows[] = {
    {cif_tags::identifier, identifier, ""},
    {"_chemical_formula_sum", text_field<chemical, &ChemicalInfo::formula>, ""},
    {"_chemical_compound_source", text_field<chemical, &ChemicalInfo::source>, ""},
    {"_chemical_properties_biological", text_field<chemical, &ChemicalInfo::bioactivity>, ""},
    {"_exptl_crystal_colour", text_field<crystal, &CrystalInfo::color>, ""},
    {"_exptl_crystal_description", text_field<crystal, &CrystalInfo::habit>, ""},
    {"_exptl_crystal_recrystallization_method",
     text_field<crystal, &CrystalInfo::recrystallisation_solvent>, ""},
    {"_cell_special_details", text_field<crystal, &CrystalInfo::other_cell_details>, ""},
    {"_exptl_special_details", text_field<crystal, &CrystalInfo::experimental_notes>, ""},
    {"_diffrn_ambient_pressure", text_field<experimental, &ExperimentalInfo::pressure>, "kPa"},
    {"_exptl_crystal_density_diffrn", text_field<experimental, &ExperimentalInfo::density_author>,
     ""},
    {"_diffrn_radiation_probe", text_field<experimental, &ExperimentalInfo::radiation_probe>, ""},
    {"_diffrn_radiation_source", text_field<experimental, &ExperimentalInfo::radiation_source>, ""},
    {"_diffrn_source", text_field<experimental, &ExperimentalInfo::radiation_source>, ""},
    {"_diffrn_source_type", text_field<experimental, &ExperimentalInfo::radiation_source>, ""},
    {"_chemical_absolute_configuration",
     text_field<experimental, &ExperimentalInfo::absolute_configuration>, ""},
    {"_diffrn_special_details", text_field<experimental, &ExperimentalInfo::diffraction_details>,
     ""},
    {"_diffrn_measurement_method", text_field<experimental, &ExperimentalInfo::diffraction_details>,
     ""},
    {"_refine_special_details", text_field<experimental, &ExperimentalInfo::refinement_details>,
     ""},
    {"_diffrn_measurement_device_type",
     text_field<experimental, &ExperimentalInfo::intensity_method>, ""},
    {"_diffrn_measurement_device", text_field<experimental, &ExperimentalInfo::intensity_method>,
     ""},
    {"_journal_name_full", text_field<publication, &Publication::journal>, ""},
    {"_journal_volume", text_field<publication, &Publication::volume>, ""},
    {"_journal_year", text_field<publication, &Publication::year>, ""},
    {"_journal_page_first", text_field<publication, &Publication::page>, ""},
};

constexpr std::string_view kelvin = "K";
constexpr double lowest_melting_point = 1;  // in K; helium's, under pressure

/// Finds the styles of a name, but takes codes that stand for no letter for plain text, which the
/// database's mark-up would leave out.
class WholeNameStyleFinder : public CifChemicalNameStyleFinder {
public:
    void greek(std::vector<GreekSlice>& out) const override {
        std::vector<GreekSlice> letters;
        CifChemicalNameStyleFinder::greek(letters);
        for (const GreekSlice& letter : letters) {
            if (letter.symbol() != TextItem::no_symbol) out.push_back(letter);
        }
    }
};

/// A name in the database's own mark-up; empty, with a problem, when it cannot be styled.
std::string read_name(BlockReader& block, const BlockReader::Value& name) {
    TevoRichTextGenerator generator;
    try {
        return TextItem(make_handle<WholeNameStyleFinder>(), one_line(name.text))
            .mark_up_text(generator);
    } catch (const std::exception& error) {
        block.add_problem(name, std::string(error.what()) + " in");
        return "";
    }
}

}  // namespace

void read_texts(BlockReader& block, Entry& entry) {
    for (const TextRow& row : text_rows) {
        std::string& field = row.field(entry);
        const std::string text = block.first_text(just(row.tag));
        if (field.empty() && !text.empty()) field = *row.unit ? with_unit(text, row.unit) : text;
    }
    if (entry.identifier.empty()) entry.identifier = block.block().name();
}

void read_melting_point(BlockReader& block, Entry& entry) {
    const BlockReader::Value point = block.first_value(just(cif_tags::melting_point));
    std::string& shown = entry.crystal_info->melting_point;
    if (point) shown = with_unit(one_line(point.text), kelvin);
    const std::optional<UncertainValue> number = read_number(point.text);
    if (number && number->value < lowest_melting_point) {
        block.add_unexpected(point, "a temperature in K").level = Problem::Level::warning;
    }
    if (point) return;
    const std::string above = block.first_text(just(cif_tags::melting_point_above));
    const std::string below = block.first_text(just(cif_tags::melting_point_below));
    if (!above.empty()) shown = "> " + with_unit(above, kelvin);
    if (!above.empty() && !below.empty()) shown += ", ";
    if (!below.empty()) shown.append("< ").append(with_unit(below, kelvin));
}

void read_names(BlockReader& block, Entry& entry) {
    std::string& compound_name = entry.chemical_info->compound_name;
    for (std::string& name : block.texts(cif_tags::name)) {
        if (!compound_name.empty()) break;
        compound_name = read_name(block, {block.item(cif_tags::name), std::move(name)});
    }
    for (const std::string_view tag : cif_tags::synonyms) {
        for (std::string& name : block.texts(tag)) {
            const std::string synonym = read_name(block, {block.item(tag), std::move(name)});
            if (!synonym.empty()) entry.chemical_info->synonyms.push_back(synonym);
        }
    }
}
