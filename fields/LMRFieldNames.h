#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The catalogue of the fields of a database entry: their labels, their groups and the lists in
/// which they are shown. It only reads constant tables and may be used by any thread.
class LMRFieldNames {
public:
    /// The fields, in the order of the lists but the default one.
    enum TextID : int {
        identifier,
        cell_lengths,
        cell_angles,
        cell_volume,
        space_group,
        sohncke_group,
        reduced_cell_lengths,
        reduced_cell_angles,
        reduced_cell_volume,
        temperature,
        temperature_text,
        pressure,
        density_author,
        density_kovr,
        average_sigma,
        r_factor,
        radiation_probe,
        radiation_source,
        absolute_configuration,
        diffraction_details,
        powder_study,
        refinement_details,
        intensity_method,
        accession_date,
        modification_date,
        category,
        bonding_tolerance,
        previous_refcode,
        tevo_match_flag,
        connectivity_comment,
        batch,
        memo,
        remarks,
        author_correspondence,
        ignored_errors,
        formula,
        compound_name,
        bioactivity,
        conformer,
        isomer,
        source,
        peptide_sequence,
        classifiers,
        synonym,
        z_zprime,
        color,
        habit,
        analogues,
        melting_point,
        experimental_notes,
        phase_transitions,
        polymorph,
        sensitivity,
        recrystallisation_solvent,
        disorder,
        other_cell_details,
        number_of_coordinates,
        literature_reference,
        authors,
        cross_references,
        kovr_number,
        deposition_numbers,
        msdbbib
    };
    /// Who looks at an entry: the public, or the editors, who see all fields.
    enum FieldVisibility : int { external_view, internal_view };

    /// The label under which the field is shown and found. Throws std::invalid_argument "Internal
    /// Error: Invalid field name requested in LMRFieldNames::text " unless valid_id().
    static const char* text(TextID id);
    /// Whether it is one of the enumerators.
    static bool valid_id(TextID id) noexcept;
    /// Stores in `id` the field of that label, to the byte; returns false, with `id` as it was,
    /// when there is none. O(f) for the f fields of the catalogue.
    static bool find_id(const char* name, TextID& id);
    /// The same: the field, or none.
    [[nodiscard]] static std::optional<TextID> id_of(std::string_view label) noexcept;
    /// The group under which the field is listed. Throws std::invalid_argument "Internal Error:
    /// Invalid field name requested in LMRFieldNames::group" for fields without one: sohncke_group,
    /// isomer and those that are not valid_id().
    static const char* group(TextID id);

    /// These replace what `out` held by the fields of a list, in the order in which they are shown.
    /// @{
    static void default_fields(std::vector<TextID>& out);
    static void external_fields(std::vector<TextID>& out);
    static void internal_fields(std::vector<TextID>& out);
    /// @}
    /// The same lists, which live as long as the program.
    /// @{
    static std::span<const TextID> default_list() noexcept;
    static std::span<const TextID> external_list() noexcept;
    static std::span<const TextID> internal_list() noexcept;
    /// @}
    /// external_fields() for the public, else internal_fields().
    static void fields(FieldVisibility visibility, std::vector<TextID>& out);
};
