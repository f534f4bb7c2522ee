#include "entries/EditedEntry.h"

#include <algorithm>
#include <map>

#include "entries/cif_text.h"
#include "entries/field_edit.h"
#include "entries/kept_lines.h"
#include "suppliers/FieldTextSupplier.h"

EditedEntry::EditedEntry(const EntryReader& entries, std::size_t index, CifEdits& edits)
    : entries_(entries),
      index_(index),
      block_(entries.document(), entries.block_of(index), entries.common_block_of(index), false),
      edits_(edits) {}

std::string EditedEntry::shown(std::string_view label) const {
    const CifEntry entry = entries_[index_];
    if (const EntryText* const text = entry.text(label)) return text->text;
    const std::optional<LMRFieldNames::TextID> id = LMRFieldNames::id_of(label);
    return id ? FieldTextSupplier(*id).text(entry.entry) : "";
}

std::string EditedEntry::value_of(const FieldPart& part, const std::string& text,
                                  const FieldForm* form) const {
    if (text == "?" || text == ".") {
        throw FieldRefused("'" + text + "' stands for no text; an empty one takes it away");
    }
    const std::optional<std::string> value = ::value_of(part, text, is_version_2());
    if (value) return *value;
    std::string expected = expected_of(part);
    const std::string outline = form ? form->outline() : "...";
    if (outline != "...") expected.append(" in a text like '").append(outline).append("'");
    refuse(expected, text);
}

void EditedEntry::set(const BlockReader::Value& value, const Text& text) {
    Text written = text;
    if (text) written = in_kept_lines((*value.item)[value.row].content(), *text);
    edits_of(*value.item).set(*value.item, value.row, written);
}

void EditedEntry::set(Tags tags, const Text& text) {
    if (!text) {
        for (const BlockReader::Value& value : values(tags)) set(value, text);
        return;
    }
    const BlockReader::Value value = block_.first_value(tags);
    if (value) return set(value, text);
    for (const std::string_view tag : tags) {
        const CifItem* const item = block_.item(tag);
        if (!item) continue;
        if (item->size() > 0) return edits_of(*item).set(*item, 0, text);
        return edits_of(*item).set_rows(*item, {{std::nullopt, {{item, text}}}});
    }
    edits_.add(entries_.block_of(index_), in_style(tags.front()), *text);
}

std::vector<BlockReader::Value> EditedEntry::values(Tags tags) {
    std::vector<BlockReader::Value> values;
    for (const std::string_view tag : tags) {
        const CifItem* const item = block_.item(tag);
        for (std::size_t row = 0; item && row < item->size(); ++row) {
            std::string text = (*item)[row].text();
            if (!text.empty()) values.push_back({item, std::move(text), row});
        }
    }
    return values;
}

void EditedEntry::set_list(Tags tags, const std::vector<BlockReader::Value>& old,
                           const std::vector<Member>& wanted) {
    bool same_rows = old.size() == wanted.size();
    for (std::size_t i = 0; i < wanted.size() && same_rows; ++i) same_rows = wanted[i].old == i;
    if (same_rows) {
        for (const Member& member : wanted) {
            if (member.text) set(old[*member.old], member.text);
        }
        return;
    }
    if (wanted.empty()) return set(tags, std::nullopt);
    const CifItem* item = old.empty() ? nullptr : old.front().item;
    for (const std::string_view tag : tags) item = item ? item : block_.item(tag);
    if (!item) {
        std::vector<std::string> texts;
        texts.reserve(wanted.size());
        for (const Member& member : wanted) texts.push_back(member.text.value_or(""));
        return edits_.add(entries_.block_of(index_), in_style(tags.front()), texts);
    }
    if (!old.empty() && old.back().item != item) {
        throw FieldRefused("expected as many values as there are, as " + std::string(item->tag()) +
                           " and " + std::string(old.back().item->tag()) + " hold them");
    }
    std::vector<CifRow> rows;
    rows.reserve(item->size() + wanted.size());
    for (const Member& member : wanted) {
        CifRow& row = rows.emplace_back();
        if (member.old) row.old = old[*member.old].row;
        if (member.text) row.values.emplace_back(item, member.text);
    }
    // What other columns say of rows without a value stays.
    for (std::size_t row = 0; item->in_loop() && row < item->size(); ++row) {
        if ((*item)[row].text().empty()) rows.push_back({row, {}});
    }
    edits_of(*item).set_rows(*item, std::move(rows));
}

CifEdits& EditedEntry::edits_of(const CifItem& item) {
    const std::size_t block = entries_.document().block_at(item.origin());
    if (block != entries_.block_of(index_)) changed_common_block_ = block;
    return edits_;
}

std::string EditedEntry::in_style(std::string_view tag) const {
    const std::string lower = in_lower_case(tag);
    for (const CifItem* const item : entries_.document().items(entries_.block_of(index_))) {
        const std::size_t point = item->tag().find('.');
        if (point == std::string_view::npos || point >= tag.size() || tag[point] != '_') continue;
        if (in_lower_case(item->tag().substr(0, point)) != lower.substr(0, point)) continue;
        std::string styled(tag);
        styled[point] = '.';
        return styled;
    }
    return std::string(tag);
}

std::vector<std::string> split_list(std::string_view text, std::string_view separator,
                                    const std::vector<std::string>& old) {
    const auto is_whole_at = [&](const std::string& value) {
        return text.starts_with(value) &&
               (text.size() == value.size() || text.substr(value.size()).starts_with(separator));
    };
    std::vector<std::string> texts;
    std::size_t next_old = 0;
    while (!text.empty()) {
        std::size_t size = std::min(text.find(separator), text.size());
        // The one that stood here goes first.
        if (next_old < old.size() && is_whole_at(old[next_old])) size = old[next_old].size();
        ++next_old;
        std::string one = one_line(text.substr(0, size));
        if (!one.empty()) texts.push_back(std::move(one));
        text.remove_prefix(std::min(size + separator.size(), text.size()));
    }
    return texts;
}

std::vector<EditedEntry::Member> aligned(const std::vector<std::string>& old,
                                         const std::vector<std::string>& wanted,
                                         const std::vector<TextKey>& keys) {
    std::vector<EditedEntry::Member> members(wanted.size());
    std::vector<bool> is_kept(old.size());
    const auto pair_by = [&](const TextKey& key) {
        std::map<std::string, std::vector<std::size_t>> places;  // the last first
        for (std::size_t i = old.size(); i > 0; --i) {
            if (!is_kept[i - 1]) places[key(old[i - 1])].push_back(i - 1);
        }
        places.erase("");
        for (std::size_t i = 0; i < wanted.size(); ++i) {
            if (members[i].old) continue;
            const auto found = places.find(key(wanted[i]));
            if (found == places.end() || found->second.empty()) continue;
            members[i].old = found->second.back();
            is_kept[*members[i].old] = true;
            found->second.pop_back();
        }
    };
    pair_by([](const std::string& text) { return text; });
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (!members[i].old) members[i].text = wanted[i];
    }
    for (const TextKey& key : keys) pair_by(key);
    std::size_t next = 0;  // what stood behind the one before
    for (EditedEntry::Member& member : members) {
        if (!member.old && next < old.size() && !is_kept[next]) {
            member.old = next;
            is_kept[next] = true;
        }
        if (member.old) next = *member.old + 1;
    }
    return members;
}

void refuse(const std::string& expected, std::string_view text) {
    constexpr std::size_t longest = 60;
    std::string message = "expected " + expected + ", not '";
    message += text.substr(0, longest);
    message += text.size() > longest ? "...'" : "'";
    throw FieldRefused(message);
}
