#include "tasks/View.h"

#include <algorithm>

#include "tasks/UnknownField.h"

namespace {

constexpr View view_rows[] = {
    {"default", "the fields that matter most", LMRFieldNames::default_list},
    {"external", "what the public sees", LMRFieldNames::external_list},
    {"internal", "all fields", LMRFieldNames::internal_list},
};

const Field* find_field(std::string_view label) {
    const std::span<const Field> all = fields();
    const auto field = std::find_if(all.begin(), all.end(),
                                    [label](const Field& known) { return label == known.label; });
    return field == all.end() ? nullptr : &*field;
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
    std::size_t start = 0;
    while (start <= labels.size()) {
        std::size_t end = std::min(labels.find(',', start), labels.size());
        // One label holds a comma itself: where a part is not a label, the next belongs to it.
        if (!find_field(labels.substr(start, end - start))) {
            end = std::min(labels.find(',', std::min(end + 1, labels.size())), labels.size());
        }
        named.push_back(field_named(labels.substr(start, end - start)));
        start = end + 1;
    }
    return named;
}

const Field& field_named(const std::string& label) {
    const Field* const field = find_field(label);
    if (!field) throw UnknownField(label);
    return *field;
}
