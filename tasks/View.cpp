#include "tasks/View.h"

#include <algorithm>

#include "tasks/UnknownField.h"

namespace {

constexpr View view_rows[] = {
    {"default", "the fields that matter most", LMRFieldNames::default_fields},
    {"external", "what the public sees", LMRFieldNames::external_fields},
    {"internal", "all fields", LMRFieldNames::internal_fields},
};

}  // namespace

std::span<const View> views() { return view_rows; }

std::vector<LMRFieldNames::TextID> fields_named(const std::string& labels) {
    std::vector<LMRFieldNames::TextID> fields;
    std::size_t start = 0;
    while (start <= labels.size()) {
        std::size_t end = std::min(labels.find(',', start), labels.size());
        LMRFieldNames::TextID id{};
        // One label holds a comma itself: where a part is not a label, the next belongs to it.
        if (!LMRFieldNames::find_id(labels.substr(start, end - start).c_str(), id)) {
            end = std::min(labels.find(',', std::min(end + 1, labels.size())), labels.size());
        }
        fields.push_back(field_named(labels.substr(start, end - start)));
        start = end + 1;
    }
    return fields;
}

LMRFieldNames::TextID field_named(const std::string& label) {
    LMRFieldNames::TextID id{};
    if (!LMRFieldNames::find_id(label.c_str(), id)) throw UnknownField(label);
    return id;
}
