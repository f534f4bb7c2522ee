#include "entries/field_items.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "entries/cif_tags.h"

namespace {

using Kind = FieldPart::Kind;
using Names = LMRFieldNames;

// Digits among the units would be numbers to searches.
constexpr char per_millimetre[] = "mm\xE2\x81\xBB\xC2\xB9";
constexpr char grams_per_volume[] = "g/cm\xC2\xB3";
constexpr char grams_in_ascii[] = "g/cm3";
constexpr char angstrom[] = "\xC3\x85";

constexpr std::size_t most_parts = 6;

struct Row {
    FieldPart parts[most_parts];  // those behind the last have no names
    const char* form = "$0";
    const char* refusal = nullptr;
};

/// A field that one item holds.
constexpr Row single(std::string_view tag, Kind kind, const char* unit = "") {
    return {{{{tag}, kind, unit}}};
}
/// Parameter `index` of the cell.
/// @{
constexpr FieldPart edge(std::size_t index) {
    return {{cif_tags::cell[index]}, Kind::printed, "", {angstrom, "A"}, 0};
}
constexpr FieldPart angle(std::size_t index) {
    return {{cif_tags::cell[index]}, Kind::printed, "", {"\xC2\xB0"}, 0, 180};
}
/// @}
constexpr Row computed(const char* refusal) { return {{}, "", refusal}; }

constexpr Row in_no_item = computed("no item of CIF files holds it");

struct CatalogueRow {
    Names::TextID field;
    Row row;
};

// Other fields no item holds.
constexpr CatalogueRow catalogue_rows[] = {
    {Names::identifier, single(cif_tags::identifier, Kind::plain)},
    {Names::cell_lengths, {{edge(0), edge(1), edge(2)}, "a $0 b $1 c $2"}},
    {Names::cell_angles, {{angle(3), angle(4), angle(5)}, "a $0 b $1 g $2"}},
    {Names::cell_volume, {{{{cif_tags::volume}, Kind::number, "", {"\xC3\x85\xC2\xB3", "A3"}, 0}}}},
    {Names::space_group, {{{{cif_tags::symbol[0], cif_tags::symbol[1]}, Kind::plain}}}},
    {Names::sohncke_group, computed("is computed from the space group")},
    {Names::reduced_cell_lengths, computed("is computed from the cell and its centring")},
    {Names::reduced_cell_angles, computed("is computed from the cell and its centring")},
    {Names::reduced_cell_volume, computed("is computed from the cell and its centring")},
    {Names::temperature,
     {{{{cif_tags::temperature[0], cif_tags::temperature[1]}, Kind::printed, "", {"K"}, 0}}}},
    {Names::temperature_text,
     {{{{cif_tags::temperature[0], cif_tags::temperature[1]}, Kind::words}}}},
    {Names::pressure, single("_diffrn_ambient_pressure", Kind::range, "kPa")},
    {Names::density_author,
     {{{{"_exptl_crystal_density_diffrn"}, Kind::number, "", {grams_per_volume, grams_in_ascii}}}}},
    {Names::average_sigma, computed("is computed from the bonds between carbon atoms")},
    {Names::r_factor,
     {{{{cif_tags::r_factor[0], cif_tags::r_factor[1], cif_tags::r_factor[2]},
        Kind::per_cent,
        "",
        {"%"}}}}},
    {Names::radiation_probe, single("_diffrn_radiation_probe", Kind::text)},
    {Names::radiation_source,
     {{{{"_diffrn_radiation_source", "_diffrn_source", "_diffrn_source_type"}, Kind::text}}}},
    {Names::absolute_configuration, single("_chemical_absolute_configuration", Kind::text)},
    {Names::diffraction_details,
     {{{{"_diffrn_special_details", "_diffrn_measurement_method"}, Kind::text}}}},
    {Names::refinement_details, single("_refine_special_details", Kind::text)},
    {Names::intensity_method,
     {{{{"_diffrn_measurement_device_type", "_diffrn_measurement_device"}, Kind::text}}}},
    {Names::accession_date, single(cif_tags::accession, Kind::date)},
    {Names::modification_date, computed("is the last date of _audit_update_record")},
    {Names::formula, single("_chemical_formula_sum", Kind::formula)},
    {Names::compound_name, single(cif_tags::name, Kind::name)},
    {Names::bioactivity, single("_chemical_properties_biological", Kind::text)},
    {Names::source, single("_chemical_compound_source", Kind::text)},
    {Names::synonym, {{{{cif_tags::synonyms[0], cif_tags::synonyms[1]}, Kind::name}}}},
    {Names::z_zprime,
     {{{{cif_tags::z}, Kind::count, "", {}, 0}, {{}, Kind::computed}}, "Z: $0 Z': $1|Z: $0|$0"}},
    {Names::color, single("_exptl_crystal_colour", Kind::text)},
    {Names::habit, single("_exptl_crystal_description", Kind::text)},
    {Names::melting_point,
     {{{{cif_tags::melting_point}, Kind::quantity, "K"},
       {{cif_tags::melting_point_above}, Kind::quantity, "K"},
       {{cif_tags::melting_point_below}, Kind::quantity, "K"}},
      "$0|[> $1], [< $2]"}},
    {Names::experimental_notes, single("_exptl_special_details", Kind::text)},
    {Names::recrystallisation_solvent,
     single("_exptl_crystal_recrystallization_method", Kind::text)},
    {Names::disorder, computed("is made of the disorder groups of the atoms")},
    {Names::other_cell_details, single("_cell_special_details", Kind::text)},
    {Names::number_of_coordinates, computed("is counted from the atoms")},
    {Names::literature_reference,
     {{{{cif_tags::journal}, Kind::plain},
       {{"_journal_volume"}, Kind::plain},
       {{"_journal_year"}, Kind::count},
       {{"_journal_page_first"}, Kind::page},
       {{cif_tags::last_page}, Kind::page},
       {{cif_tags::journal}, Kind::text}},
      "<j>$0</j><v>$1</v><y>$2</y><p>[$3$4|$3-$4|$3]</p>|"
      "[<i>$5</i>] [([<b>$1</b>], [$2])], [$3$4|$3-$4|$3]"}},
    {Names::authors, single(cif_tags::author, Kind::plain)},
    {Names::cross_references, single(cif_tags::database_prefix, Kind::plain)},
    {Names::deposition_numbers, single(cif_tags::deposition_prefix, Kind::plain)},
};

struct FurtherRow {
    const char* label;
    Row row;
};

constexpr FurtherRow further_rows[] = {
    {"Title", single("_publ_section_title", Kind::name)},
    {"DOI", {{{{"_journal_paper_doi", "_journal_article_doi"}, Kind::plain}}}},
    {"Moiety Formula", single("_chemical_formula_moiety", Kind::formula)},
    {"Formula Weight", single("_chemical_formula_weight", Kind::number)},
    {"Measured Density",
     {{{{"_exptl_crystal_density_meas"}, Kind::density, grams_per_volume, {grams_in_ascii}}}}},
    {"F(000)", single("_exptl_crystal_F_000", Kind::number)},
    {"Crystal Size",
     {{{{"_exptl_crystal_size_max"}, Kind::number},
       {{"_exptl_crystal_size_mid"}, Kind::number},
       {{"_exptl_crystal_size_min"}, Kind::number},
       {{"_exptl_crystal_size_rad"}, Kind::number}},
      "[$0] \xC3\x97 [$1] \xC3\x97 [$2] mm|radius $3 mm|[$0] x [$1] x [$2] mm|[$0] * [$1] * [$2] "
      "mm"}},
    {"Wavelength",
     {{{{"_diffrn_radiation_wavelength", "_diffrn_radiation_wavelength_value"}, Kind::numbers}},
      "$0 \xC3\x85"}},
    {"Absorption Coefficient",
     {{{{"_exptl_absorpt_coefficient_mu"}, Kind::number, per_millimetre, {"mm-1"}}}}},
    {"Absorption Correction",
     {{{{"_exptl_absorpt_correction_type"}, Kind::plain},
       {{"_exptl_absorpt_correction_T_min"}, Kind::number},
       {{"_exptl_absorpt_correction_T_max"}, Kind::number}},
      "[$0], [T $1$2|T $1 to $2|T from $1|T up to $2]"}},
    {"Theta Range",
     {{{{"_diffrn_reflns_theta_min"}, Kind::number}, {{"_diffrn_reflns_theta_max"}, Kind::number}},
      "[$0$1|$0 to $1|from $0|up to $1]\xC2\xB0"}},
    {"Reflections",
     {{{{"_diffrn_reflns_number"}, Kind::count},
       {{"_reflns_number_total"}, Kind::count},
       {{"_reflns_number_gt", "_reflns_number_observed"}, Kind::count},
       {{"_diffrn_reflns_av_R_equivalents"}, Kind::per_cent}},
      "[$0 measured], [$1 independent], [$2 observed], [R(int) $3 %]"}},
    {"wR-Factor (%)",
     {{{{"_refine_ls_wR_factor_ref", "_refine_ls_wR_factor_gt", "_refine_ls_wR_factor_obs",
         "_refine_ls_wR_factor_all"},
        Kind::per_cent,
        "",
        {"%"}}}}},
    {"Goodness Of Fit",
     {{{{"_refine_ls_goodness_of_fit_ref", "_refine_ls_goodness_of_fit_gt",
         "_refine_ls_goodness_of_fit_obs", "_refine_ls_goodness_of_fit_all"},
        Kind::number}}}},
};
FieldItems items_of_row(std::string_view label, const Row& row) {
    std::size_t parts = 0;
    while (parts < most_parts &&
           (!row.parts[parts].names[0].empty() || row.parts[parts].kind == Kind::computed)) {
        ++parts;
    }
    return {label, {row.parts, parts}, FieldForm(row.form), row.refusal};
}

/// Those of the catalogue first.
const std::vector<FieldItems>& all_fields() {
    static const std::vector<FieldItems> fields = [] {
        std::vector<FieldItems> all;
        for (const Names::TextID id : Names::internal_list()) {
            const auto* const row =
                std::find_if(std::begin(catalogue_rows), std::end(catalogue_rows),
                             [id](const CatalogueRow& candidate) { return candidate.field == id; });
            const bool held = row != std::end(catalogue_rows);
            all.push_back(items_of_row(Names::text(id), held ? row->row : in_no_item));
        }
        for (const FurtherRow& row : further_rows) all.push_back(items_of_row(row.label, row.row));
        return all;
    }();
    return fields;
}

}  // namespace

const FieldItems& items_of(LMRFieldNames::TextID field) {
    static_cast<void>(Names::text(field));  // throws for what is not a field
    return all_fields()[static_cast<std::size_t>(field)];
}

const FieldItems* items_of(std::string_view label) {
    const std::vector<FieldItems>& all = all_fields();
    const auto found = std::find_if(
        all.begin(), all.end(), [label](const FieldItems& field) { return field.label == label; });
    return found == all.end() ? nullptr : &*found;
}

FieldForm::Parts parts_of(BlockReader& block, const FieldItems& field) {
    FieldForm::Parts parts;
    parts.reserve(field.parts.size());
    for (const FieldPart& part : field.parts) parts.push_back(text_of(block, part));
    return parts;
}

std::string text_of(BlockReader& block, const FieldItems& field) {
    return field.form.text_of(parts_of(block, field));
}
