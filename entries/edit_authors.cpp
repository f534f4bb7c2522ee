#include <algorithm>

#include "entries/FieldEditor.h"
#include "entries/PersonName.h"
#include "entries/cif_text.h"
#include "entries/field_edit.h"

namespace {

/// "J. B." for "J.B.", "Y.-Z." stays.
std::string spaced(std::string_view initials) {
    std::string text;
    for (const char c : initials) {
        if (!text.empty() && text.back() == '.' && c != '-') text += ' ';
        text += c;
    }
    return text;
}

/// A name in the form of the field as CIF files write it, if it is read so: "Smith, J. B." for
/// "J.B.Smith".
std::optional<std::string> name_of_file(const std::string& name) {
    const auto is_read = [&](const std::string& written) {
        const PersonName read = read_person_name(written);
        return !read.doubtful && read.text == name;
    };
    for (std::size_t dot = name.rfind('.'); dot != std::string::npos && dot > 0;
         dot = name.rfind('.', dot - 1)) {
        const std::string initials = spaced(std::string_view(name).substr(0, dot + 1));
        std::string surname = one_line(std::string_view(name).substr(dot + 1));
        std::string written = surname + ", " + initials;
        if (!surname.empty() && is_read(written)) return written;
        const std::size_t blank = surname.rfind(' ');
        if (blank == std::string::npos) continue;
        // "Smith, J. Jr"
        written = surname.substr(0, blank) + ", " + initials + surname.substr(blank);
        if (is_read(written)) return written;
    }
    if (is_read(name)) return name;
    return std::nullopt;
}

/// The names of a list in the form of the field as CIF files write them, and old ones as they are.
std::vector<std::string> names_of_file(const std::string& text,
                                       const std::vector<std::string>& old) {
    std::vector<std::string> names = split_list(text, ", ", old);
    std::vector<std::string> written;
    written.reserve(names.size());
    for (std::string& name : names) {
        const bool is_old = std::find(old.begin(), old.end(), name) != old.end();
        std::optional<std::string> as_written = is_old ? name : name_of_file(name);
        if (!as_written) {
            // One name as files write it, with its comma.
            if (!read_person_name(text).doubtful && names.size() == 2) return {text};
            refuse("names like 'J.Smith, R.von Dreele' or 'Smith, John; von Dreele, R.'", name);
        }
        written.push_back(std::move(*as_written));
    }
    return written;
}

}  // namespace

// What is not changed is compared in the form of the field, what is new is written as files do.
void edit_authors(FieldEditor& editor, const FieldItems& field, const std::string& text) {
    const FieldPart& part = field.parts.front();
    const std::vector<BlockReader::Value> old = editor.values(part.tags());
    const bool as_given = text.find(';') != std::string::npos;
    std::vector<std::string> old_names;
    old_names.reserve(old.size());
    for (const BlockReader::Value& value : old) {
        std::string name = editor.block().decoded(value);
        old_names.push_back(as_given ? std::move(name) : read_person_name(name).text);
    }
    const std::vector<std::string> names =
        as_given ? split_list(text, ";", old_names) : names_of_file(text, old_names);
    std::vector<FieldEditor::Member> members = aligned(old_names, names);
    for (FieldEditor::Member& member : members) {
        if (member.text) member.text = editor.value_of(part, *member.text);
    }
    editor.set_list(part.tags(), old, members);
}
