#include "suppliers/FieldTextSupplier.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "markup/EnumTextMapping.h"
#include "suppliers/AccessionDateSupplier.h"
#include "suppliers/CombinedPublicationTagSupplier.h"
#include "suppliers/ModificationDateSupplier.h"
#include "suppliers/RFactorSupplier.h"
#include "suppliers/SohnckeGroupSupplier.h"
#include "suppliers/SynonymSupplier.h"
#include "suppliers/Z_ZPrimeSupplier.h"
#include "suppliers/internal/joined.h"
#include "suppliers/internal/printed.h"
#include "suppliers/internal/space_group_text.h"

namespace {

using Entry = THandle<CrystalStructureDatabaseEntry>;
using Names = LMRFieldNames;

template <class Value>
std::string printed_if(const std::optional<Value>& value) {
    return value ? printed(*value) : "";
}

template <class Value>
std::string labelled(const char* const (&labels)[3], const Value& a, const Value& b,
                     const Value& c) {
    return printed(labels[0], a, labels[1], b, labels[2], c);
}

constexpr const char* lengths[] = {"a ", " b ", " c "};
constexpr const char* angles[] = {"a ", " b ", " g "};

std::string cell_lengths(const Entry& entry) {
    const std::optional<Cell>& cell = entry->crystal_info->cell;
    return cell ? labelled(lengths, cell->a, cell->b, cell->c) : "";
}

std::string cell_angles(const Entry& entry) {
    const std::optional<Cell>& cell = entry->crystal_info->cell;
    if (!cell) return "";
    return labelled(angles, cell->alpha.degrees, cell->beta.degrees, cell->gamma.degrees);
}

std::string cell_volume(const Entry& entry) {
    const std::optional<Cell>& cell = entry->crystal_info->cell;
    const double volume = cell ? cell->volume() : 0;
    return volume > 0 ? printed(volume) : "";
}

std::string reduced_cell_lengths(const Entry& entry) {
    const std::optional<ReducedCell>& cell = entry->crystal_info->reduced_cell;
    return cell ? labelled(lengths, cell->a, cell->b, cell->c) : "";
}

std::string reduced_cell_angles(const Entry& entry) {
    const std::optional<ReducedCell>& cell = entry->crystal_info->reduced_cell;
    return cell ? labelled(angles, cell->alpha, cell->beta, cell->gamma) : "";
}

std::string reduced_cell_volume(const Entry& entry) {
    const std::optional<ReducedCell>& cell = entry->crystal_info->reduced_cell;
    return cell ? printed(cell->volume) : "";
}

std::string literature_reference(const Entry& entry) {
    const Publication& publication = *entry->publication;
    const CombinedPublicationTagSupplier tags;
    if (publication.journal.empty() && publication.volume.empty() && publication.year.empty() &&
        publication.page.empty()) {
        return "";
    }
    return tags.begin_jnl() + publication.journal + tags.end_jnl() +  //
           tags.begin_vol() + publication.volume + tags.end_vol() +   //
           tags.begin_year() + publication.year + tags.end_year() +   //
           tags.begin_page() + publication.page + tags.end_page();
}

std::string deposition_numbers(const Entry& entry) {
    std::vector<std::string> texts;
    for (const auto& deposition : entry->deposition_info->depositions) {
        texts.push_back(DepositionInfo::deposition_type_text().text(deposition.type) + ' ' +
                        deposition.number);
    }
    return joined(texts, "; ");
}

std::string cross_references(const Entry& entry) {
    std::vector<std::string> texts;
    for (const DatabaseCrossReference& reference : entry->cross_reference_info->references) {
        texts.push_back(DatabaseCrossReference::cross_reference_type_text().text(reference.type) +
                        ' ' + reference.code);
    }
    return joined(texts, "; ");
}

std::string number_of_coordinates(const Entry& entry) {
    const std::size_t atoms = entry->crystal_info->molecules.atoms.size();
    return atoms == 0 ? "" : printed(atoms);
}

/// What a supplier with a class of its own says.
template <class Supplier>
std::string supplied(const Entry& entry) {
    return Supplier().text(entry);
}

std::string z_zprime(const Entry& entry) {
    const CrystalInfo& crystal = *entry->crystal_info;
    return crystal.z == 0 && crystal.z_prime == 0 ? "" : supplied<Z_ZPrimeSupplier>(entry);
}

/// A text that a record of the entry holds as it is shown.
template <auto record, auto field>
std::string plain(const Entry& entry) {
    return (*((*entry).*record)).*field;
}

struct Row {
    Names::TextID field;
    std::string (*text_of)(const Entry& entry);
};

constexpr auto chemical = &CrystalStructureDatabaseEntry::chemical_info;
constexpr auto crystal = &CrystalStructureDatabaseEntry::crystal_info;
constexpr auto experimental = &CrystalStructureDatabaseEntry::experimental_info;
constexpr auto editors = &CrystalStructureDatabaseEntry::editors_info;
constexpr auto deposition = &CrystalStructureDatabaseEntry::deposition_info;
constexpr auto cross_reference = &CrystalStructureDatabaseEntry::cross_reference_info;

constexpr Row rows[] = {
    {Names::identifier, [](const Entry& entry) { return entry->identifier; }},
    {Names::cell_lengths, cell_lengths},
    {Names::cell_angles, cell_angles},
    {Names::cell_volume, cell_volume},
    {Names::space_group,
     [](const Entry& entry) { return space_group_text(entry->crystal_info->spacegroup.symbol); }},
    {Names::sohncke_group, supplied<SohnckeGroupSupplier>},
    {Names::reduced_cell_lengths, reduced_cell_lengths},
    {Names::reduced_cell_angles, reduced_cell_angles},
    {Names::reduced_cell_volume, reduced_cell_volume},
    {Names::temperature,
     [](const Entry& entry) { return printed_if(entry->experimental_info->temperature); }},
    {Names::temperature_text, plain<experimental, &ExperimentalInfo::temperature_text>},
    {Names::pressure, plain<experimental, &ExperimentalInfo::pressure>},
    {Names::density_author, plain<experimental, &ExperimentalInfo::density_author>},
    {Names::density_kovr, plain<experimental, &ExperimentalInfo::density_kovr>},
    {Names::average_sigma,
     [](const Entry& entry) { return printed_if(entry->experimental_info->average_sigma); }},
    {Names::r_factor, supplied<RFactorSupplier>},
    {Names::radiation_probe, plain<experimental, &ExperimentalInfo::radiation_probe>},
    {Names::radiation_source, plain<experimental, &ExperimentalInfo::radiation_source>},
    {Names::absolute_configuration, plain<experimental, &ExperimentalInfo::absolute_configuration>},
    {Names::diffraction_details, plain<experimental, &ExperimentalInfo::diffraction_details>},
    {Names::powder_study, plain<experimental, &ExperimentalInfo::powder_study>},
    {Names::refinement_details, plain<experimental, &ExperimentalInfo::refinement_details>},
    {Names::intensity_method, plain<experimental, &ExperimentalInfo::intensity_method>},
    {Names::accession_date, supplied<AccessionDateSupplier>},
    {Names::modification_date, supplied<ModificationDateSupplier>},
    {Names::category, plain<editors, &EditorsInfo::category>},
    {Names::bonding_tolerance, plain<editors, &EditorsInfo::bonding_tolerance>},
    {Names::previous_refcode, plain<editors, &EditorsInfo::previous_refcode>},
    {Names::tevo_match_flag, plain<editors, &EditorsInfo::tevo_match_flag>},
    {Names::connectivity_comment, plain<editors, &EditorsInfo::connectivity_comment>},
    {Names::batch, plain<editors, &EditorsInfo::batch>},
    {Names::memo, plain<editors, &EditorsInfo::memo>},
    {Names::remarks, plain<editors, &EditorsInfo::remarks>},
    {Names::author_correspondence, plain<editors, &EditorsInfo::author_correspondence>},
    {Names::ignored_errors, plain<editors, &EditorsInfo::ignored_errors>},
    {Names::formula, plain<chemical, &ChemicalInfo::formula>},
    {Names::compound_name, plain<chemical, &ChemicalInfo::compound_name>},
    {Names::bioactivity, plain<chemical, &ChemicalInfo::bioactivity>},
    {Names::conformer, plain<chemical, &ChemicalInfo::conformer>},
    {Names::isomer, plain<chemical, &ChemicalInfo::isomer>},
    {Names::source, plain<chemical, &ChemicalInfo::source>},
    {Names::peptide_sequence, plain<chemical, &ChemicalInfo::peptide_sequence>},
    {Names::classifiers,
     [](const Entry& entry) { return joined(entry->chemical_info->classifiers, "; "); }},
    {Names::synonym, supplied<SynonymSupplier>},
    {Names::z_zprime, z_zprime},
    {Names::color, plain<crystal, &CrystalInfo::color>},
    {Names::habit, plain<crystal, &CrystalInfo::habit>},
    {Names::analogues, plain<crystal, &CrystalInfo::analogues>},
    {Names::melting_point, plain<crystal, &CrystalInfo::melting_point>},
    {Names::experimental_notes, plain<crystal, &CrystalInfo::experimental_notes>},
    {Names::phase_transitions, plain<crystal, &CrystalInfo::phase_transitions>},
    {Names::polymorph, plain<crystal, &CrystalInfo::polymorph>},
    {Names::sensitivity, plain<crystal, &CrystalInfo::sensitivity>},
    {Names::recrystallisation_solvent, plain<crystal, &CrystalInfo::recrystallisation_solvent>},
    {Names::disorder, plain<crystal, &CrystalInfo::disorder>},
    {Names::other_cell_details, plain<crystal, &CrystalInfo::other_cell_details>},
    {Names::number_of_coordinates, number_of_coordinates},
    {Names::literature_reference, literature_reference},
    {Names::authors, [](const Entry& entry) { return joined(entry->publication->authors, ", "); }},
    {Names::cross_references, cross_references},
    {Names::kovr_number, plain<deposition, &DepositionInfo::kovr_number>},
    {Names::deposition_numbers, deposition_numbers},
    {Names::msdbbib, plain<cross_reference, &CrossReferenceInfo::msdbbib>},
};

constexpr bool rows_are_in_value_order() {
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        if (rows[i].field != static_cast<int>(i)) return false;
    }
    return std::size(rows) == Names::msdbbib + 1;
}
static_assert(rows_are_in_value_order(), "every field has one row");

}  // namespace

FieldTextSupplier::FieldTextSupplier(LMRFieldNames::TextID field) {
    static_cast<void>(Names::text(field));  // throws for what is not a field
    text_of_ = rows[static_cast<std::size_t>(field)].text_of;
}

FieldTextSupplier::~FieldTextSupplier() = default;

std::string FieldTextSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    return text_of_(entry);
}
