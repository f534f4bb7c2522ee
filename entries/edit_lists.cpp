#include "entries/EditedEntry.h"
#include "entries/cif_text.h"
#include "entries/field_edit.h"

namespace {

using Values = std::vector<BlockReader::Value>;

/// Makes the texts of these values, which are parts of one kind, a list of others.
void edit_list(EditedEntry& entry, const FieldPart& part, const Values& old,
               std::string_view separator, std::string_view text) {
    std::vector<std::string> old_texts;
    old_texts.reserve(old.size());
    for (const BlockReader::Value& value : old) {
        old_texts.push_back(one_line(value.text, part.kind == FieldPart::name));
    }
    std::vector<EditedEntry::Member> members =
        aligned(old_texts, split_list(text, separator, old_texts));
    for (EditedEntry::Member& member : members) {
        if (member.text) member.text = entry.value_of(part, *member.text);
    }
    entry.set_list(part.tags(), old, members);
}

}  // namespace

void edit_synonyms(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    const FieldPart& part = field.parts.front();
    edit_list(entry, part, entry.values(part.tags()), "; ", text);
}

void edit_wavelengths(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    const FieldPart& part = field.parts.front();
    FieldForm::Parts list(1);
    const auto fits = [](std::size_t /*part*/, const std::string& /*text*/) { return true; };
    const bool has_unit = field.form.match(text, list, fits, list);
    Values old = entry.values(part.tags());
    while (!old.empty() && old.back().item != old.front().item) old.pop_back();
    edit_list(entry, part, old, ", ", has_unit ? list.front() : text);
}
