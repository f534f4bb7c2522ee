#include <exception>

#include "entries/BlockReader.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/quantities.h"
#include "fields/LMRFieldNames.h"

namespace {

using Entry = CrystalStructureDatabaseEntry;
using Names = LMRFieldNames;

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
    std::optional<Names::TextID> label;  // none: of its field other things are shown beside
};

// Where several items fill one field, the first that has a value does.
constexpr TextRow text_rows[] = {
    {cif_tags::identifier, identifier, "", {}},
    {"_chemical_formula_sum", text_field<chemical, &ChemicalInfo::formula>, "", Names::formula},
    {"_chemical_compound_source", text_field<chemical, &ChemicalInfo::source>, "", Names::source},
    {"_chemical_properties_biological", text_field<chemical, &ChemicalInfo::bioactivity>, "",
     Names::bioactivity},
    {"_exptl_crystal_colour", text_field<crystal, &CrystalInfo::color>, "", Names::color},
    {"_exptl_crystal_description", text_field<crystal, &CrystalInfo::habit>, "", Names::habit},
    {"_exptl_crystal_recrystallization_method",
     text_field<crystal, &CrystalInfo::recrystallisation_solvent>, "",
     Names::recrystallisation_solvent},
    {"_cell_special_details", text_field<crystal, &CrystalInfo::other_cell_details>, "",
     Names::other_cell_details},
    {"_exptl_special_details", text_field<crystal, &CrystalInfo::experimental_notes>, "",
     Names::experimental_notes},
    {"_diffrn_ambient_pressure", text_field<experimental, &ExperimentalInfo::pressure>, "kPa",
     Names::pressure},
    {"_exptl_crystal_density_diffrn", text_field<experimental, &ExperimentalInfo::density_author>,
     "", Names::density_author},
    {"_diffrn_radiation_probe", text_field<experimental, &ExperimentalInfo::radiation_probe>, "",
     Names::radiation_probe},
    {"_diffrn_radiation_source", text_field<experimental, &ExperimentalInfo::radiation_source>, "",
     Names::radiation_source},
    {"_diffrn_source", text_field<experimental, &ExperimentalInfo::radiation_source>, "",
     Names::radiation_source},
    {"_diffrn_source_type", text_field<experimental, &ExperimentalInfo::radiation_source>, "",
     Names::radiation_source},
    {"_chemical_absolute_configuration",
     text_field<experimental, &ExperimentalInfo::absolute_configuration>, "",
     Names::absolute_configuration},
    {"_diffrn_special_details", text_field<experimental, &ExperimentalInfo::diffraction_details>,
     "", Names::diffraction_details},
    {"_diffrn_measurement_method", text_field<experimental, &ExperimentalInfo::diffraction_details>,
     "", Names::diffraction_details},
    {"_refine_special_details", text_field<experimental, &ExperimentalInfo::refinement_details>, "",
     Names::refinement_details},
    {"_diffrn_measurement_device_type",
     text_field<experimental, &ExperimentalInfo::intensity_method>, "", Names::intensity_method},
    {"_diffrn_measurement_device", text_field<experimental, &ExperimentalInfo::intensity_method>,
     "", Names::intensity_method},
    {cif_tags::journal, text_field<publication, &Publication::journal>, "", {}},
    {"_journal_volume", text_field<publication, &Publication::volume>, "", {}},
    {"_journal_year", text_field<publication, &Publication::year>, "", {}},
    {"_journal_page_first", text_field<publication, &Publication::page>, "", {}},
};

constexpr std::string_view kelvin = "K";
constexpr double lowest_melting_point = 1;  // in K; helium's, under pressure

/// A name in the database's own mark-up, which the name as it is written stands beside; empty, with
/// a problem, when it cannot be styled.
std::string read_name(BlockReader& block, const BlockReader::Value& name, std::string& as_written) {
    as_written = one_line(name.text, true);
    try {
        const CodedText text(as_written);
        block.note_doubts(name, text);
        return text.tevo();
    } catch (const std::exception& error) {
        block.add_problem(name, "styles-cross", std::string(error.what()) + " in");
        return "";
    }
}

}  // namespace

void read_texts(BlockReader& block, Entry& entry) {
    for (const TextRow& row : text_rows) {
        std::string& field = row.field(entry);
        const BlockReader::Value value = block.first_value(just(row.tag));
        if (!field.empty() || !value) continue;
        field = block.decoded(value);
        if (*row.unit) field = with_unit(field, row.unit);
        std::string as_written = one_line(value.text);
        const bool is_formula = row.label == Names::formula;
        if (is_formula ||
            (row.label && as_written != field && CodedText::may_hold_codes(as_written))) {
            block.add_text({Names::text(*row.label), is_formula ? "cif-formula" : "cif-text",
                            is_formula ? field : std::move(as_written)});
        }
    }
    if (entry.identifier.empty()) entry.identifier = block.block().name();
}

void read_melting_point(BlockReader& block, Entry& entry) {
    const BlockReader::Value point = block.first_value(just(cif_tags::melting_point));
    std::string& shown = entry.crystal_info->melting_point;
    if (point) shown = with_unit(block.decoded(point), kelvin);
    const std::optional<UncertainValue> number = read_number(point.text);
    if (number && number->value < lowest_melting_point) {
        block.add_unexpected(point, "not-in-kelvin", "a temperature in K").level =
            Problem::Level::warning;
    }
    if (point) return;
    const std::string above = block.first_decoded_text(just(cif_tags::melting_point_above));
    const std::string below = block.first_decoded_text(just(cif_tags::melting_point_below));
    if (!above.empty()) shown = "> " + with_unit(above, kelvin);
    if (!above.empty() && !below.empty()) shown += ", ";
    if (!below.empty()) shown.append("< ").append(with_unit(below, kelvin));
}

void read_names(BlockReader& block, Entry& entry) {
    std::string& compound_name = entry.chemical_info->compound_name;
    std::string as_written;
    std::size_t row = 0;
    for (std::string& name : block.texts(cif_tags::name)) {
        if (!compound_name.empty()) break;
        compound_name =
            read_name(block, {block.item(cif_tags::name), std::move(name), row++}, as_written);
    }
    if (!compound_name.empty()) {
        block.add_text({Names::text(Names::compound_name), "cif-text", as_written});
    }
    std::string all_as_written;
    for (const std::string_view tag : cif_tags::synonyms) {
        row = 0;
        for (std::string& name : block.texts(tag)) {
            const std::string synonym =
                read_name(block, {block.item(tag), std::move(name), row++}, as_written);
            if (synonym.empty()) continue;
            if (!all_as_written.empty()) all_as_written += "; ";
            all_as_written += as_written;
            entry.chemical_info->synonyms.push_back(synonym);
        }
    }
    if (!all_as_written.empty()) {
        block.add_text({Names::text(Names::synonym), "cif-text", all_as_written});
    }
}
