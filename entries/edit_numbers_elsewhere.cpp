#include <algorithm>
#include <map>
#include <utility>

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

bool is_deposition(std::string_view tag) { return tag.starts_with(cif_tags::deposition_prefix); }

/// Takes a word and the blank behind it off a text.
bool take(std::string_view& text, const std::string& word) {
    if (!text.starts_with(word + ' ')) return false;
    text.remove_prefix(word.size() + 1);
    return true;
}

std::string word_for_same_structure() {
    return DatabaseCrossReference::cross_reference_type_text().text(
        DatabaseCrossReference::same_structure);
}

std::string word_for(DepositionInfo::DepositionType type) {
    return DepositionInfo::deposition_type_text().text(type);
}

struct Reference {
    std::string tag, number;
};

/// That of "Same structure CSD ABCDEF".
Reference reference_of(const std::string& text) {
    constexpr std::string_view of_names =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";
    std::string_view rest = text;
    const bool is_same = take(rest, word_for_same_structure());
    const std::size_t blank = std::min(rest.find(' '), rest.size());
    const std::string_view database = rest.substr(0, blank);
    Reference reference{std::string(cif_tags::database_prefix), one_line(rest.substr(blank))};
    reference.tag += database;
    const bool is_named = !database.empty() && !is_deposition(in_lower_case(reference.tag)) &&
                          database.find_first_not_of(of_names) == std::string_view::npos;
    if (!is_same || !is_named || reference.number.empty()) {
        refuse("references like '" + word_for_same_structure() + " CSD ABCDEF'", text);
    }
    return reference;
}

struct Depositions {
    std::vector<std::string> archived;
    EditedEntry::Text journal{};
};

/// Those of "Supplementary 123456; Journal AB1234".
Depositions depositions_of(const std::string& text) {
    const std::string archived = word_for(DepositionInfo::supplementary);
    const std::string journal = word_for(DepositionInfo::journal);
    const std::string example = "numbers like '" + archived + " 123456; " + journal + " AB1234'";
    Depositions depositions;
    for (const std::string& deposition : split_list(text, "; ", {})) {
        std::string_view rest = deposition;
        if (take(rest, archived)) {
            depositions.archived.emplace_back(rest);
        } else if (!depositions.journal && take(rest, journal)) {
            depositions.journal = std::string(rest);
        } else {
            refuse(example, deposition);
        }
    }
    return depositions;
}

/// Makes the numbers of archives others; one may be added.
void edit_archived(EditedEntry& entry, const std::vector<std::string>& wanted) {
    constexpr std::string_view archive = "_database_code_depnum_ccdc_archive";
    std::vector<BlockReader::Value> old;
    std::vector<std::string> old_numbers;
    bool has_archive = false;
    for (const Number& number : numbers(entry)) {
        if (number.text.empty() || !is_deposition(number.tag)) continue;
        old.push_back({number.item, number.text, 0});
        old_numbers.push_back(number.text);
        has_archive = has_archive || number.tag == archive;
    }
    const std::vector<EditedEntry::Member> members = aligned(old_numbers, wanted);
    const auto added = std::count_if(members.begin(), members.end(),
                                     [](const EditedEntry::Member& one) { return !one.old; });
    if (added > (has_archive ? 0 : 1)) {
        throw FieldRefused("expected as many numbers of archives as there are items for them");
    }
    std::vector<bool> is_kept(old.size());
    for (const EditedEntry::Member& member : members) {
        if (member.old) is_kept[*member.old] = true;
        if (member.old && member.text) entry.set(old[*member.old], member.text);
        if (!member.old) entry.set(just(archive), member.text);
    }
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (!is_kept[i]) entry.set(old[i], std::nullopt);
    }
}

}  // namespace

void edit_cross_references(EditedEntry& entry, const FieldItems& /*field*/,
                           const std::string& text) {
    std::map<std::string, Reference> wanted;  // by tags in lower case
    for (const std::string& one : split_list(text, "; ", {})) {
        Reference reference = reference_of(one);
        const std::string tag = in_lower_case(reference.tag);
        if (!wanted.try_emplace(tag, std::move(reference)).second) {
            refuse("one reference to each database", one);
        }
    }
    const std::string own = entry.shown(LMRFieldNames::text(LMRFieldNames::identifier));
    for (const Number& number : numbers(entry)) {
        const BlockReader::Value value{number.item, "", 0};
        const auto found = wanted.find(number.tag);
        if (found != wanted.end()) {
            if (found->second.number != number.text) entry.set(value, found->second.number);
            wanted.erase(found);
        } else if (!is_deposition(number.tag) && !number.text.empty() && number.text != own) {
            entry.set(value, std::nullopt);
        }
    }
    for (const auto& [lower, reference] : wanted) {
        const std::string_view tag = reference.tag;
        entry.set(just(tag), reference.number);
    }
}

void edit_depositions(EditedEntry& entry, const FieldItems& /*field*/, const std::string& text) {
    const Depositions wanted = depositions_of(text);
    edit_archived(entry, wanted.archived);
    const std::string code = entry.block().first_text(just(cif_tags::editor_code));
    if (wanted.journal.value_or("") != code) entry.set(just(cif_tags::editor_code), wanted.journal);
}
