#include "tasks/Field.h"

#include <algorithm>
#include <iterator>

#include "tasks/row_named.h"

namespace {

using Names = LMRFieldNames;

struct Row {
    Names::TextID id;
    const char* source;
    const char* search;
};

// Fields that are more than a plain text that matches as a whole.
constexpr Row rows[] = {
    {Names::cell_lengths, "cell-lengths", "numeric"},
    {Names::cell_angles, "cell-angles", "numeric"},
    {Names::cell_volume, "plain", "numeric"},
    {Names::space_group, "spacegroup", "exact"},
    {Names::reduced_cell_lengths, "cell-lengths", "numeric"},
    {Names::reduced_cell_angles, "cell-angles", "numeric"},
    {Names::reduced_cell_volume, "plain", "numeric"},
    {Names::temperature, "plain", "numeric"},
    {Names::pressure, "plain", "numeric"},
    {Names::density_author, "plain", "numeric"},
    {Names::density_kovr, "plain", "numeric"},
    {Names::average_sigma, "plain", "numeric"},
    {Names::r_factor, "plain", "numeric"},
    {Names::diffraction_details, "plain", "lines"},
    {Names::refinement_details, "plain", "lines"},
    {Names::memo, "plain", "lines"},
    {Names::remarks, "plain", "lines"},
    {Names::formula, "formula", "exact"},
    {Names::compound_name, "tevo-name", "substring"},
    {Names::synonym, "tevo-name", "substring"},
    {Names::z_zprime, "z", "numeric"},
    {Names::melting_point, "plain", "numeric"},
    {Names::experimental_notes, "plain", "lines"},
    {Names::other_cell_details, "plain", "lines"},
    {Names::number_of_coordinates, "plain", "numeric"},
    {Names::literature_reference, "reference", "publication"},
    {Names::authors, "plain", "surnames"},
};

}  // namespace

Field field_of(Names::TextID id) {
    static_cast<void>(Names::text(id));  // throws for what is not a field
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [id](const Row& candidate) { return candidate.id == id; });
    const bool special = row != std::end(rows);
    return {id, row_named(sources(), special ? row->source : "plain"),
            row_named(search_kinds(), special ? row->search : "exact")};
}

const char* group_of(Names::TextID id) {
    return id == Names::sohncke_group || id == Names::isomer ? "Other" : Names::group(id);
}
