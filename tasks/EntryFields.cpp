#include "tasks/EntryFields.h"

#include <optional>
#include <utility>

#include "entries/pass_on_bad_alloc.h"
#include "tasks/EntryFinder.h"

EntryFields::EntryFields(const CifEntry& entry, std::span<const Field> wanted,
                         const EntryFinder* finder) {
    fields.reserve(wanted.size());
    for (const Field& field : wanted) {
        const FieldText text = text_of(entry, field);
        if (text.text.empty()) continue;
        try {
            std::optional<EntryField> found;
            if (finder) found = finder->matches_in(entry, field);
            if (found) {
                fields.push_back(std::move(*found));
            } else {
                fields.push_back(
                    {field.label, field.group, {text.source->make_finder(), text.text}});
            }
        } catch (const std::exception& error) {
            pass_on_bad_alloc(error);
            problems.push_back(problem_of(entry, field, error));
        }
    }
}

Problem problem_of(const CifEntry& entry, const Field& field, const std::exception& error) {
    Problem problem;
    problem.block = std::string(entry.block.name());
    problem.item = field.label;
    problem.what = error.what();
    return problem;
}
