#include <cmath>

#include "entries/EditedEntry.h"
#include "entries/cif_text.h"
#include "entries/field_edit.h"

namespace {

/// "4" and "0.5" of "Z: 4 Z': 0.5"; false for other texts.
bool split_z(const FieldItems& field, const std::string& text, FieldForm::Parts& parts) {
    const auto fits = [](std::size_t /*part*/, const std::string& number) {
        return read_number(number).has_value();
    };
    parts.assign(field.parts.size(), "");
    return field.form.match(text, FieldForm::Parts(parts.size()), fits, parts);
}

double number_of(const std::string& text) {
    return read_number(text).value_or(UncertainValue{}).value;
}

}  // namespace

void edit_cell_volume(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    const bool is_written =
        static_cast<bool>(entry.block().first_value(field.parts.front().tags()));
    if (!is_written && !entry.shown(field.label).empty()) {
        throw FieldRefused("is computed from the cell");
    }
    edit_parts(entry, field, text);
}

void edit_z(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    constexpr std::size_t z = 0, z_prime = 1;
    const std::string shown = entry.shown(field.label);
    if (text == shown) return;
    FieldForm::Parts old, wanted;
    split_z(field, shown, old);
    const bool has_both = split_z(field, text, wanted) && !wanted[z_prime].empty();
    if (has_both && !old[z_prime].empty() && wanted[z_prime] != old[z_prime]) {
        const double ratio = number_of(old[z_prime]) * number_of(wanted[z]) / number_of(old[z]);
        constexpr double rounding = 1e-5;  // six digits are shown
        if (!(std::abs(number_of(wanted[z_prime]) - ratio) <= rounding * ratio)) {
            throw FieldRefused("Z' is computed from Z and the space group");
        }
    }
    edit_parts(entry, field, text);
}
