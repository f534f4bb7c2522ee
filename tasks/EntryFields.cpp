#include "tasks/EntryFields.h"

#include <exception>

#include "suppliers/FieldTextSupplier.h"
#include "tasks/Field.h"
#include "tasks/Highlighting.h"

namespace {

THandle<InputTextStyleFinder> finder_of(const Field& field, const std::string& term) {
    if (term.empty()) return field.source->make_finder();
    return Highlighting(*field.source, field.search->make_search({}), term).finder();
}

}  // namespace

EntryFields::EntryFields(const CifEntry& entry, std::span<const LMRFieldNames::TextID> ids,
                         const std::string& term) {
    for (const LMRFieldNames::TextID id : ids) {
        const std::string text = FieldTextSupplier(id).text(entry.entry);
        if (text.empty()) continue;
        const char* const label = LMRFieldNames::text(id);
        try {
            fields.push_back({label, group_of(id), {finder_of(field_of(id), term), text}});
        } catch (const std::exception& error) {
            Problem& problem = problems.emplace_back();
            problem.block = std::string(entry.block.name());
            problem.item = label;
            problem.what = error.what();
        }
    }
}
