#include "tasks/Field.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "entries/further_fields.h"
#include "markup/DisplayedText.h"
#include "suppliers/FieldTextSupplier.h"
#include "tasks/row_named.h"
#include "text/TextItem.h"

namespace {

using Names = LMRFieldNames;

struct Row {
    Names::TextID id;
    const char* source;
    const char* search;
    const char* comparison;
};

// Fields that are more than a plain text that matches as a whole.
constexpr Row rows[] = {
    {Names::identifier, "plain", "exact", "exact"},
    {Names::cell_lengths, "cell-lengths", "numeric", "numbers"},
    {Names::cell_angles, "cell-angles", "numeric", "numbers"},
    {Names::cell_volume, "plain", "numeric", "numbers"},
    {Names::space_group, "spacegroup", "exact", "space-group"},
    {Names::reduced_cell_lengths, "cell-lengths", "numeric", "numbers"},
    {Names::reduced_cell_angles, "cell-angles", "numeric", "numbers"},
    {Names::reduced_cell_volume, "plain", "numeric", "numbers"},
    {Names::temperature, "plain", "numeric", "numbers"},
    {Names::pressure, "plain", "numeric", "numbers"},
    {Names::density_author, "plain", "numeric", "numbers"},
    {Names::density_kovr, "plain", "numeric", "numbers"},
    {Names::average_sigma, "plain", "numeric", "numbers"},
    {Names::r_factor, "plain", "numeric", "numbers"},
    {Names::diffraction_details, "plain", "lines", "text"},
    {Names::refinement_details, "plain", "lines", "text"},
    {Names::memo, "plain", "lines", "text"},
    {Names::remarks, "plain", "lines", "text"},
    {Names::formula, "formula", "exact", "formula"},
    {Names::compound_name, "tevo-name", "substring", "text"},
    {Names::synonym, "tevo-name", "substring", "text"},
    {Names::z_zprime, "z", "numeric", "counts"},
    {Names::melting_point, "plain", "numeric", "numbers"},
    {Names::experimental_notes, "plain", "lines", "text"},
    {Names::other_cell_details, "plain", "lines", "text"},
    {Names::number_of_coordinates, "plain", "numeric", "counts"},
    {Names::literature_reference, "reference", "publication", "reference"},
    {Names::authors, "plain", "surnames", "authors"},
    {Names::accession_date, "plain", "exact", "exact"},
    {Names::modification_date, "plain", "exact", "exact"},
    {Names::previous_refcode, "plain", "exact", "exact"},
    {Names::kovr_number, "plain", "exact", "exact"},
    {Names::deposition_numbers, "plain", "exact", "exact"},
    {Names::cross_references, "plain", "exact", "exact"},
    {Names::msdbbib, "plain", "exact", "exact"},
};

Field field_in_catalogue(Names::TextID id) {
    const auto* const row = std::find_if(std::begin(rows), std::end(rows),
                                         [id](const Row& candidate) { return candidate.id == id; });
    const bool special = row != std::end(rows);
    const bool lacks_group = id == Names::sohncke_group || id == Names::isomer;
    return {Names::text(id),
            lacks_group ? "Other" : Names::group(id),
            row_named(sources(), special ? row->source : "plain"),
            row_named(search_kinds(), special ? row->search : "exact"),
            row_named(comparison_kinds(), special ? row->comparison : "text"),
            id};
}

}  // namespace

std::span<const Field> fields() {
    static const std::vector<Field> all = [] {
        std::vector<Field> fields;
        for (int id = 0; Names::valid_id(static_cast<Names::TextID>(id)); ++id) {
            fields.push_back(field_in_catalogue(static_cast<Names::TextID>(id)));
        }
        for (const FurtherField& row : further_fields()) {
            fields.push_back({row.label, further_group, row_named(sources(), row.source),
                              row_named(search_kinds(), row.search),
                              row_named(comparison_kinds(), row.comparison), std::nullopt});
        }
        return fields;
    }();
    return all;
}

const Field& field_of(Names::TextID id) {
    static_cast<void>(Names::text(id));  // throws for what is not a field
    return fields()[static_cast<std::size_t>(id)];
}

std::string FieldText::shown() const {
    return source->is_coded ? DisplayedText(TextItem(source->make_finder(), text)).text() : text;
}

FieldText text_of(const CifEntry& entry, const Field& field) {
    const EntryText* const text = entry.text(field.label);
    if (text) return {text->text, row_named(sources(), text->source), false};
    return {field.id ? FieldTextSupplier(*field.id).text(entry.entry) : "", field.source, true};
}
