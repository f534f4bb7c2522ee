#include "tasks/View.h"

#include <algorithm>
#include <string_view>

#include "entries/cif_text.h"
#include "tasks/UnknownField.h"
#include "tasks/nearest_word.h"

namespace {

constexpr View view_rows[] = {
    {"default", "the fields that matter most", LMRFieldNames::default_list},
    {"external", "what the public sees", LMRFieldNames::external_list},
    {"internal", "all fields", LMRFieldNames::internal_list},
};

std::string_view trimmed(std::string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

/// The field with that label, whose case does not count, or null.
const Field* find_field(std::string_view label) {
    const std::string lower = in_lower_case(label);
    const std::span<const Field> all = fields();
    const auto field = std::find_if(all.begin(), all.end(), [&](const Field& known) {
        return in_lower_case(known.label) == lower;
    });
    return field == all.end() ? nullptr : &*field;
}

std::string_view nearest_label(std::string_view label) {
    std::vector<std::string_view> labels;
    for (const Field& field : fields()) labels.emplace_back(field.label);
    return nearest_word(label, labels);
}

/// The part of a list of labels from `start` up to the next comma.
std::string_view part_at(std::string_view labels, std::size_t start) {
    return labels.substr(start, labels.find(',', start) - start);
}

/// The size of the label with a comma in it that begins the list, as it is or misspelt; else 0.
std::size_t size_of_label_with_comma(std::string_view labels) {
    const std::string_view first = part_at(labels, 0);
    if (first.size() == labels.size()) return 0;
    const std::size_t size = first.size() + 1 + part_at(labels, first.size() + 1).size();
    const bool is_one =
        nearest_label(trimmed(labels.substr(0, size))).find(',') != std::string_view::npos;
    return is_one ? size : 0;
}

}  // namespace

std::vector<Field> View::fields() const {
    std::vector<Field> all;
    for (const LMRFieldNames::TextID id : list()) all.push_back(field_of(id));
    for (const Field& field : ::fields()) {
        if (!field.id) all.push_back(field);
    }
    return all;
}

std::span<const View> views() { return view_rows; }

std::vector<Field> fields_named(const std::string& labels) {
    std::vector<Field> named;
    for (std::size_t start = 0; start <= labels.size();) {
        const std::string_view rest = std::string_view(labels).substr(start);
        std::string_view label = part_at(rest, 0);
        if (!find_field(trimmed(label))) {
            const std::size_t size = size_of_label_with_comma(rest);
            if (size > 0) label = rest.substr(0, size);
        }
        named.push_back(field_named(std::string(trimmed(label))));
        start += label.size() + 1;
    }
    return named;
}

const Field& field_named(const std::string& label) {
    const Field* const field = find_field(label);
    if (!field) throw UnknownField(label, nearest_label(label));
    return *field;
}
