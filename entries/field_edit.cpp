#include "entries/field_edit.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "entries/EditedEntry.h"
#include "entries/cif_text.h"
#include "entries/written_value.h"

namespace {

using Names = LMRFieldNames;

struct Row {
    const char* label;
    void (*edit)(EditedEntry& entry, const FieldItems& field, const std::string& text);
};

/// The fields that are more than parts in a form.
const std::vector<Row>& special_fields() {
    static const std::vector<Row> rows = {
        {Names::text(Names::cell_volume), edit_cell_volume},
        {Names::text(Names::space_group), edit_space_group},
        {Names::text(Names::z_zprime), edit_z},
        {Names::text(Names::synonym), edit_synonyms},
        {Names::text(Names::authors), edit_authors},
        {Names::text(Names::cross_references), edit_cross_references},
        {Names::text(Names::deposition_numbers), edit_depositions},
        {"Wavelength", edit_wavelengths},
    };
    return rows;
}

std::string trimmed(const std::string& text) {
    constexpr char white_space[] = " \t\r\n";
    const std::size_t first = text.find_first_not_of(white_space);
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(white_space) - first + 1);
}

bool is_in_codes(const FieldPart& part) {
    return part.kind == FieldPart::text || part.kind == FieldPart::name;
}

/// Whether pages stand in the place of all else that there is of a reference: what is no page, such
/// as a year, looks like one, too.
bool is_page_instead(const FieldItems& field, const FieldForm::Parts& present,
                     const FieldForm::Parts& wanted) {
    bool has_page = false, has_other = false;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const bool is_page = field.parts[i].kind == FieldPart::page;
        if (!wanted[i].empty() && (!is_page || !present[i].empty())) return false;
        has_page = has_page || !wanted[i].empty();
        has_other = has_other || !present[i].empty();
    }
    return has_page && has_other;
}

}  // namespace

FieldWriting field_writing(std::string_view label) {
    const FieldItems* const field = items_of(label);
    if (!field || field->refusal) return FieldWriting::derived;
    // A reference has a part in codes only where it is incomplete.
    return is_in_codes(field->parts.front()) ? FieldWriting::text : FieldWriting::own;
}

void edit_parts(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    const FieldForm::Parts present = parts_of(entry.block(), field);
    const bool version_2 = entry.is_version_2();
    const auto fits = [&](std::size_t i, const std::string& part) {
        // Two pages, rather than one with a dash, unless it is there.
        const bool is_range = field.parts[i].kind == FieldPart::page && part != present[i] &&
                              part.find('-') != std::string::npos;
        return !is_range && value_of(field.parts[i], part, version_2).has_value();
    };
    FieldForm::Parts wanted(present.size());
    if (!text.empty() && !field.form.match(text, present, fits, wanted)) {
        refuse("a text like '" + field.form.outline() + "'", text);
    }
    if (is_page_instead(field, present, wanted)) {
        refuse("a text like '" + field.form.outline() + "'", text);
    }
    std::vector<std::pair<const FieldPart*, EditedEntry::Text>> changes;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const FieldPart& part = field.parts[i];
        if (normal_text(part, wanted[i]) == present[i] || part.kind == FieldPart::computed)
            continue;
        const auto says_it_too = [&](const FieldPart& other) {
            const auto index = static_cast<std::size_t>(&other - field.parts.data());
            return other.names[0] == part.names[0] && !wanted[index].empty();
        };
        const bool vanishes = wanted[i].empty();
        if (vanishes && std::any_of(field.parts.begin(), field.parts.end(), says_it_too)) continue;
        EditedEntry::Text value;
        if (!vanishes) value = entry.value_of(part, wanted[i], &field.form);
        changes.emplace_back(&part, std::move(value));
    }
    // Items may say something that is not shown, and others what they do not.
    if (changes.empty() || text == entry.shown(field.label)) return;
    for (const auto& [part, value] : changes) entry.set(part->tags(), value);
}

std::optional<std::size_t> edit_field(const EntryReader& entries, std::size_t index,
                                      std::string_view label, const std::string& text,
                                      CifEdits& edits) {
    const FieldItems* const field = items_of(label);
    if (!field) throw FieldRefused("is no field");
    EditedEntry entry(entries, index, edits);
    const std::string wanted = trimmed(text);
    static_cast<void>(written_value(wanted, CifQuoting::bare, {entry.is_version_2()}));
    const std::vector<Row>& rows = special_fields();
    const auto special = std::find_if(rows.begin(), rows.end(),
                                      [label](const Row& row) { return label == row.label; });
    try {
        if (field->refusal) throw FieldRefused(field->refusal);
        (special == rows.end() ? edit_parts : special->edit)(entry, *field, wanted);
    } catch (const FieldRefused&) {
        // What stands there may stay, whatever it is.
        if (entry.shown(label) != wanted) throw;
    }
    return entry.changed_common_block();
}
