#include "fields/LMRFieldNames.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>

namespace {

constexpr char no_text[] = "Internal Error: Invalid field name requested in LMRFieldNames::text ";
constexpr char no_group[] = "Internal Error: Invalid field name requested in LMRFieldNames::group";

constexpr char cell[] = "Cell";
constexpr char experimental[] = "Experimental";
constexpr char lmr_internals[] = "LMR Internals";
constexpr char chemical[] = "Chemical";
constexpr char crystal[] = "Crystal";
constexpr char publication[] = "Publication";
constexpr char references[] = "References";

constexpr bool external = true;
constexpr bool internal = false;

struct Field {
    const char* label;
    const char* group;  // null: none
    bool is_external;
};

// One row per field, in value order. The identifier stands with the publication, and two fields
// stand in no group: applications have come to rely on it.
constexpr Field field_rows[] = {
    {"Identifier", publication, external},
    {"Cell Lengths", cell, external},
    {"Cell Angles", cell, external},
    {"Cell Volume", cell, external},
    {"Space Group", cell, external},
    {"Sohncke Group", nullptr, internal},
    {"Reduced Cell Lengths", cell, external},
    {"Reduced Cell Angles", cell, external},
    {"Reduced Cell Volume", cell, external},
    {"Temperature (K)", experimental, external},
    {"Temperature (text)", experimental, internal},
    {"Pressure", experimental, external},
    {"Density (author)", experimental, external},
    {"Density (KOVR)", experimental, external},
    {"Average Sigma (C-C)", experimental, external},
    {"R-Factor (%)", experimental, external},
    {"Radiation Probe", experimental, external},
    {"Radiation Source", experimental, external},
    {"Absolute Configuration", experimental, internal},
    {"Diffraction Details", experimental, external},
    {"Powder Study", experimental, external},
    {"Refinement Details", experimental, external},
    {"Intensity Method", experimental, external},
    {"Accession Date", lmr_internals, external},
    {"Modification Date", lmr_internals, external},
    {"Category", lmr_internals, external},
    {"Bonding Tolerance", lmr_internals, internal},
    {"Previous Refcode", lmr_internals, external},
    {"Tevo Match Flag", lmr_internals, internal},
    {"Connectivity Comment", lmr_internals, external},
    {"Batch", lmr_internals, external},
    {"Memo", lmr_internals, internal},
    {"Remarks", lmr_internals, external},
    {"Author Correspondence", lmr_internals, internal},
    {"Ignored Errors", lmr_internals, internal},
    {"Formula", chemical, external},
    {"Compound Name", chemical, external},
    {"Bioactivity", chemical, external},
    {"Conformer", chemical, external},
    {"Isomer", nullptr, internal},
    {"Source", chemical, external},
    {"Peptide Sequence", chemical, external},
    {"Classifiers", chemical, internal},
    {"Synonym", chemical, external},
    {"Z, Z'", crystal, external},
    {"Color", crystal, external},
    {"Habit", crystal, external},
    {"Analogues", crystal, external},
    {"Melting Point", crystal, external},
    {"Experimental Notes", crystal, external},
    {"Phase Transitions", crystal, external},
    {"Polymorph", crystal, external},
    {"Sensitivity", crystal, external},
    {"Recrystallisation Solvent", crystal, external},
    {"Disorder", crystal, external},
    {"Other Cell Details", crystal, external},
    {"Number Of Coordinates", crystal, internal},
    {"Literature Reference", publication, external},
    {"Author(s)", publication, external},
    {"Cross References", references, internal},
    {"KOVR Number", references, internal},
    {"Deposition Numbers", references, internal},
    {"MSDBBIB", references, external},
};
static_assert(std::size(field_rows) == LMRFieldNames::msdbbib + 1, "every field has one row");

constexpr LMRFieldNames::TextID default_rows[] = {
    LMRFieldNames::identifier,  LMRFieldNames::authors,       LMRFieldNames::literature_reference,
    LMRFieldNames::formula,     LMRFieldNames::compound_name, LMRFieldNames::synonym,
    LMRFieldNames::space_group, LMRFieldNames::cell_lengths,  LMRFieldNames::cell_angles,
    LMRFieldNames::cell_volume, LMRFieldNames::z_zprime,      LMRFieldNames::r_factor,
    LMRFieldNames::disorder,    LMRFieldNames::polymorph,
};

const Field* find_field(LMRFieldNames::TextID id) {
    const auto index = static_cast<unsigned int>(id);
    return index < std::size(field_rows) ? &field_rows[index] : nullptr;
}

constexpr std::size_t external_count =
    static_cast<std::size_t>(std::count_if(std::begin(field_rows), std::end(field_rows),
                                           [](const Field& field) { return field.is_external; }));

constexpr auto internal_rows = [] {
    std::array<LMRFieldNames::TextID, std::size(field_rows)> ids{};
    for (std::size_t i = 0; i < ids.size(); ++i) ids[i] = static_cast<LMRFieldNames::TextID>(i);
    return ids;
}();

constexpr auto external_rows = [] {
    std::array<LMRFieldNames::TextID, external_count> ids{};
    std::copy_if(internal_rows.begin(), internal_rows.end(), ids.begin(),
                 [](LMRFieldNames::TextID id) { return field_rows[id].is_external; });
    return ids;
}();

void assign(std::vector<LMRFieldNames::TextID>& out, std::span<const LMRFieldNames::TextID> list) {
    out.assign(list.begin(), list.end());
}

}  // namespace

const char* LMRFieldNames::text(TextID id) {
    const Field* const field = find_field(id);
    if (!field) throw std::invalid_argument(no_text);
    return field->label;
}

bool LMRFieldNames::valid_id(TextID id) noexcept { return find_field(id) != nullptr; }

bool LMRFieldNames::find_id(const char* name, TextID& id) {
    const std::optional<TextID> found = id_of(name);
    if (found) id = *found;
    return found.has_value();
}

std::optional<LMRFieldNames::TextID> LMRFieldNames::id_of(std::string_view label) noexcept {
    const auto* const field =
        std::find_if(std::begin(field_rows), std::end(field_rows),
                     [&](const Field& candidate) { return candidate.label == label; });
    if (field == std::end(field_rows)) return std::nullopt;
    return static_cast<TextID>(field - field_rows);
}

const char* LMRFieldNames::group(TextID id) {
    const Field* const field = find_field(id);
    if (!field || !field->group) throw std::invalid_argument(no_group);
    return field->group;
}

void LMRFieldNames::default_fields(std::vector<TextID>& out) { assign(out, default_list()); }

void LMRFieldNames::external_fields(std::vector<TextID>& out) { assign(out, external_list()); }

void LMRFieldNames::internal_fields(std::vector<TextID>& out) { assign(out, internal_list()); }

std::span<const LMRFieldNames::TextID> LMRFieldNames::default_list() noexcept {
    return default_rows;
}

std::span<const LMRFieldNames::TextID> LMRFieldNames::external_list() noexcept {
    return external_rows;
}

std::span<const LMRFieldNames::TextID> LMRFieldNames::internal_list() noexcept {
    return internal_rows;
}

void LMRFieldNames::fields(FieldVisibility visibility, std::vector<TextID>& out) {
    if (visibility == external_view) return external_fields(out);
    internal_fields(out);
}
