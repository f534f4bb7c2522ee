#include <algorithm>
#include <map>

#include "entries/EditedEntry.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/field_edit.h"
#include "host/DatabaseCrossReference.h"
#include "host/DepositionInfo.h"
#include "markup/EnumTextMapping.h"

namespace {

/// The number of a database that an item holds.
struct Number {
    const CifItem* item;
    std::string tag;  // in lower case, without points
    std::string text;
};

/// Those under `_database_code_`, in the order of their tags.
std::vector<Number> numbers(EditedEntry& entry) {
    std::vector<Number> numbers;
    for (const CifItem* const item : entry.block().items(cif_tags::database_prefix)) {
        std::string tag = in_lower_case(item->tag());
        std::replace(tag.begin(), tag.end(), '.', '_');
        numbers.push_back({item, std::move(tag), one_line((*item)[0].text())});
    }
    return numbers;
}

/// Takes a word and the blank behind it off a text.
bool take(std::string_view& text, const std::string& word) {
    if (!text.starts_with(word + ' ')) return false;
    text.remove_prefix(word.size() + 1);
    return true;
}

}  // namespace

void edit_cross_references(EditedEntry& entry, const FieldItems& /*field*/,
                           const std::string& text) {
    constexpr std::string_view of_names =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";
    const std::string same = DatabaseCrossReference::cross_reference_type_text().text(
        DatabaseCrossReference::same_structure);
    std::map<std::string, std::pair<std::string, std::string>> wanted;  // tags and numbers by tags
    for (const std::string& reference : split_list(text, "; ", {})) {
        std::string_view rest = reference;
        if (!take(rest, same)) refuse("references like '" + same + " CSD ABCDEF'", reference);
        const std::size_t blank = std::min(rest.find(' '), rest.size());
        const std::string_view database = rest.substr(0, blank);
        const std::string number = one_line(rest.substr(blank));
        std::string tag(cif_tags::database_prefix);
        tag += database;
        const bool is_named = !database.empty() &&
                              database.find_first_not_of(of_names) == std::string_view::npos &&
                              !in_lower_case(tag).starts_with(cif_tags::deposition_prefix);
        if (!is_named || number.empty()) {
            refuse("references like '" + same + " CSD ABCDEF'", reference);
        }
        if (!wanted.try_emplace(in_lower_case(tag), tag, number).second) {
            refuse("one reference to each database", reference);
        }
    }
    const std::string own = entry.shown(LMRFieldNames::text(LMRFieldNames::identifier));
    for (const Number& number : numbers(entry)) {
        const auto found = wanted.find(number.tag);
        const bool is_shown = !number.tag.starts_with(cif_tags::deposition_prefix) &&
                              !number.text.empty() && number.text != own;
        if (found == wanted.end() && !is_shown) continue;
        const BlockReader::Value value{number.item, "", 0};
        if (found == wanted.end()) {
            entry.set(value, std::nullopt);
        } else {
            if (found->second.second != number.text) entry.set(value, found->second.second);
            wanted.erase(found);
        }
    }
    for (const auto& [lower, reference] : wanted) {
        const std::string_view tag = reference.first;
        entry.set(just(tag), reference.second);
    }
}

void edit_depositions(EditedEntry& entry, const FieldItems& /*field*/, const std::string& text) {
    constexpr std::string_view archive = "_database_code_depnum_ccdc_archive";
    const auto word = [](DepositionInfo::DepositionType type) {
        return DepositionInfo::deposition_type_text().text(type);
    };
    const std::string expected = "numbers like '" + word(DepositionInfo::supplementary) +
                                 " 123456; " + word(DepositionInfo::journal) + " AB1234'";
    std::vector<std::string> archived;
    EditedEntry::Text of_journal;
    for (const std::string& deposition : split_list(text, "; ", {})) {
        std::string_view rest = deposition;
        if (take(rest, word(DepositionInfo::supplementary))) {
            archived.emplace_back(rest);
        } else if (!of_journal && take(rest, word(DepositionInfo::journal))) {
            of_journal = std::string(rest);
        } else {
            refuse(expected, deposition);
        }
    }
    std::vector<BlockReader::Value> old;
    std::vector<std::string> old_numbers;
    for (const Number& number : numbers(entry)) {
        if (number.text.empty() || !number.tag.starts_with(cif_tags::deposition_prefix)) continue;
        old.push_back({number.item, number.text, 0});
        old_numbers.push_back(number.text);
    }
    const std::vector<EditedEntry::Member> members = aligned(old_numbers, archived);
    std::vector<bool> is_kept(old.size());
    std::size_t added = 0;
    for (const EditedEntry::Member& member : members) {
        if (member.old) is_kept[*member.old] = true;
        if (!member.old) ++added;
    }
    const CifItem* const item = entry.block().item(archive);
    const bool has_archive = item && item->has_text();
    if (added > (has_archive ? 0 : 1)) {
        refuse("as many numbers of archives as there are", text);
    }
    for (const EditedEntry::Member& member : members) {
        if (member.old && member.text) entry.set(old[*member.old], member.text);
        if (!member.old) entry.set(just(archive), member.text);
    }
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (!is_kept[i]) entry.set(old[i], std::nullopt);
    }
    const std::string old_code = entry.block().first_text(just(cif_tags::editor_code));
    if (of_journal.value_or("") != old_code) entry.set(just(cif_tags::editor_code), of_journal);
}
