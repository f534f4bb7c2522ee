#include "tasks/EntryFields.h"

#include <exception>

#include "tasks/Highlighting.h"

namespace {

THandle<InputTextStyleFinder> finder_of(const FieldText& text, const std::string& term) {
    if (term.empty()) return text.source->make_finder();
    return Highlighting(*text.source, text.search->make_search({}), term).finder();
}

}  // namespace

EntryFields::EntryFields(const CifEntry& entry, std::span<const Field> wanted,
                         const std::string& term) {
    for (const Field& field : wanted) {
        const FieldText text = text_of(entry, field);
        if (text.text.empty()) continue;
        try {
            fields.push_back({field.label, field.group, {finder_of(text, term), text.text}});
        } catch (const std::exception& error) {
            Problem& problem = problems.emplace_back();
            problem.block = std::string(entry.block.name());
            problem.item = field.label;
            problem.what = error.what();
        }
    }
}
