#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string_view>

#include "entries/CodedText.h"
#include "entries/EditedEntry.h"
#include "entries/PersonName.h"
#include "entries/cif_text.h"
#include "entries/field_edit.h"

namespace {

constexpr std::size_t most_dots_of_surname = 4;

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
    std::size_t dots = 0;  // of surnames there are few: "A.St. John"
    for (std::size_t dot = name.rfind('.');
         dot != std::string::npos && dot > 0 && dots < most_dots_of_surname;
         dot = name.rfind('.', dot - 1), ++dots) {
        const std::string initials = spaced(std::string_view(name).substr(0, dot + 1));
        std::string written(name, dot + 1);
        written.append(", ").append(initials);
        if (is_read(written)) return written;
    }
    if (is_read(name)) return name;
    return std::nullopt;
}

/// Likewise of a name in any form, with its given names where they are written out.
std::optional<std::string> new_name(const std::string& given) {
    if (std::optional<std::string> name = name_of_file(given)) return name;
    const PersonName read = read_person_name(given);
    std::optional<std::string> name = read.doubtful ? std::nullopt : name_of_file(read.text);
    if (!name) return name;
    const std::string surname = name->substr(0, name->find(','));
    if (!given.ends_with(' ' + surname)) return name;
    std::string longer = surname;
    longer.append(", ").append(given, 0, given.size() - surname.size() - 1);
    return read_person_name(longer).text == read.text ? longer : name;
}

bool is_one_word(const std::string& name) { return name.find_first_of(" .") == std::string::npos; }

/// The names of a list as CIF files write them; old ones stay in the form of the field.
std::vector<std::string> names_of_file(const std::string& text,
                                       const std::vector<std::string>& old) {
    const std::vector<std::string> names = split_list(text, ", ", old);
    const std::set<std::string_view> known(old.begin(), old.end());
    // "Smith, John" is one.
    const bool may_be_parts =
        names.size() > 1 && std::all_of(names.begin(), names.end(), is_one_word);
    std::vector<std::string> written;
    written.reserve(names.size());
    for (const std::string& name : names) {
        PersonName read = known.count(name) > 0 ? PersonName{name} : read_person_name(name);
        if (known.count(read.text) > 0) {
            written.push_back(std::move(read.text));
            continue;
        }
        std::optional<std::string> as_written = new_name(name);
        if (!as_written || may_be_parts) {
            refuse("names like 'J.Smith, R.von Dreele' or 'Smith, John; von Dreele, R.'", name);
        }
        written.push_back(std::move(*as_written));
    }
    return written;
}

/// The letters of a text in lower case, without marks and accents.
std::string bare_letters(const std::string& text) {
    std::string letters;
    bool in_reference = false;  // "&#x2019;"
    for (const char c : in_lower_case(CodedText(text).with_codes())) {
        if (c == '&' || c == ';') in_reference = c == '&';
        if (!in_reference && c >= 'a' && c <= 'z') letters += c;
    }
    return letters;
}

std::string key_of_surname(const std::string& name) {
    const std::string read = read_person_name(name).text;
    const std::string written = name_of_file(read).value_or(read);
    return bare_letters(written.substr(0, written.find(',')));
}

/// With the first initial.
std::string key_of_name(const std::string& name) {
    std::string surname = key_of_surname(name);
    if (surname.empty()) return surname;
    return surname + '.' + bare_letters(read_person_name(name).text).substr(0, 1);
}

/// Names between semicolons as they are given, or as files write them where they are in the form of
/// the field; `fields` are the old ones in that.
std::vector<std::string> given_names(const std::string& text, const std::vector<std::string>& old,
                                     const std::vector<std::string>& fields) {
    std::map<std::string_view, std::string_view> known;  // those that stand so first
    for (const std::string& name : old) known.emplace(name, name);
    for (std::size_t i = 0; i < old.size(); ++i) known.emplace(fields[i], old[i]);
    std::vector<std::string> names = split_list(text, ";", old);
    for (std::string& name : names) {
        const auto found = known.find(name);
        if (found != known.end()) {
            name = found->second;
        } else if (name.find(',') == std::string::npos) {
            name = new_name(name).value_or(name);
        }
    }
    return names;
}

/// Whether a surname is the other but for accents, or, where it is long, a run of a few letters.
bool is_spelled_anew(const std::string& old, const std::string& name) {
    constexpr std::size_t letters_a_slip = 5;
    const std::string a = key_of_surname(old), b = key_of_surname(name);
    const auto [in_a, in_b] = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const auto behind = std::mismatch(a.rbegin(), std::make_reverse_iterator(in_a), b.rbegin(),
                                      std::make_reverse_iterator(in_b));
    const auto same = (in_a - a.begin()) + (behind.first - a.rbegin());
    const std::size_t longer = std::max(a.size(), b.size());
    return longer - static_cast<std::size_t>(same) <= longer / letters_a_slip;
}

/// A new name with the given names of the old one in whose place it stands, where they have its
/// initials and it is the same person: they may be written out there.
std::string with_given_names_of(const std::string& old, const std::string& name) {
    if (!is_spelled_anew(old, name)) return name;
    const std::size_t given = old.find(','), end_of_surname = name.find(',');
    if (given == std::string::npos || end_of_surname == std::string::npos) return name;
    std::string longer = name.substr(0, end_of_surname) + old.substr(given);
    return read_person_name(longer).text == read_person_name(name).text ? longer : name;
}

}  // namespace

// What is not changed is compared in the form of the field, what is new is written as files do.
void edit_authors(EditedEntry& entry, const FieldItems& field, const std::string& text) {
    const FieldPart& part = field.parts.front();
    const std::vector<BlockReader::Value> old = entry.values(part.tags());
    const bool as_given = text.find(';') != std::string::npos;
    std::vector<std::string> decoded, in_field;
    decoded.reserve(old.size());
    in_field.reserve(old.size());
    for (const BlockReader::Value& value : old) {
        decoded.push_back(entry.block().decoded(value));
        in_field.push_back(read_person_name(decoded.back()).text);
    }
    const std::vector<std::string> names =
        as_given ? given_names(text, decoded, in_field) : names_of_file(text, in_field);
    std::vector<EditedEntry::Member> members =
        aligned(as_given ? decoded : in_field, names, {key_of_name, key_of_surname});
    for (EditedEntry::Member& member : members) {
        if (!member.text) continue;
        if (member.old && !as_given) {
            member.text = with_given_names_of(decoded[*member.old], *member.text);
        }
        member.text = entry.value_of(part, *member.text);
    }
    entry.set_list(part.tags(), old, members);
}
