#include "entries/CifEdits.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "entries/cif_text.h"

namespace {

/// How many of the words of two tags, from the first, are the same: "_cell_length_a" and
/// "_cell.length_b" have two in common.
std::size_t common_words(std::string_view left, std::string_view right) {
    const std::string a = in_lower_case(left), b = in_lower_case(right);
    const auto is_separator = [](char c) { return c == '_' || c == '.'; };
    std::size_t words = 0;
    for (std::size_t i = 1;; ++i) {
        const bool a_ends = i >= a.size() || is_separator(a[i]);
        const bool b_ends = i >= b.size() || is_separator(b[i]);
        if (a_ends && b_ends) ++words;
        const bool either_is_done = i >= a.size() || i >= b.size();
        if (either_is_done || (a[i] != b[i] && !(a_ends && b_ends))) return words;
    }
}

std::size_t end_of_item(const CifItem& item, const CifBytes& bytes) {
    return bytes.end_of(item.in_row(item.size() - 1, item.columns() - 1).raw);
}

/// The item behind which one is to be added: the last of those with the most words in common, or
/// null where the block has none.
const CifItem* neighbour_of(std::string_view tag, const CifBlock::Items& items) {
    const CifItem* found = nullptr;
    std::size_t most = 0;
    for (const CifItem* item : items) {
        if (item->size() == 0) continue;
        const std::size_t common = common_words(tag, item->tag());
        if (found && common < most) continue;
        found = item;
        most = common;
    }
    return found;
}

/// How an item stands in its line.
struct ItemStyle {
    std::string_view indent, gap = " ";
    std::size_t column = 0;  // of the value, behind the indent

    std::string before_value(std::string_view tag) const {
        std::string text(indent);
        text += tag;
        if (gap.find('\t') != std::string_view::npos) return text.append(gap);
        return text.append(column > tag.size() ? column - tag.size() : 1, ' ');
    }
};

/// That of the last item before a place that stands in one line, else of the first behind it; of
/// those with more than a blank before their values, if there are any, since these align them.
ItemStyle style_at(std::size_t place, const CifBlock::Items& items, const CifBytes& bytes) {
    ItemStyle style;
    bool found = false, found_aligned = false;
    for (const CifItem* item : items) {
        const std::size_t begin = bytes.begin_of(item->tag());
        if (found_aligned && begin > place) break;
        if (item->in_loop() || !bytes.only_blanks_before(begin)) continue;
        const std::size_t end = bytes.end_of(item->tag());
        const std::size_t value = bytes.begin_of((*item)[0].raw);
        if (bytes.behind_blanks(end) != value || value == end) continue;
        const bool is_aligned = value - end > 1;
        if (found && !is_aligned && (found_aligned || begin > place)) continue;
        style = {bytes.indent_before(begin), bytes.all().substr(end, value - end),
                 is_aligned ? value - begin : 0};
        found = true;
        found_aligned = is_aligned;
    }
    return style;
}

/// Joins changes where one stands within another: what is added behind a row that is removed.
Splices joined(Splices splices, std::string_view line_end) {
    Splices result;
    for (Splice& splice : splices) {
        Splice* const last = result.empty() ? nullptr : &result.back();
        if (!last || splice.from >= last->from + last->before.size()) {
            result.push_back(std::move(splice));
            continue;
        }
        std::string_view added = splice.after;
        if (last->after.empty() && added.starts_with(line_end)) {
            added.remove_prefix(line_end.size());
        }
        last->after.append(added).append(line_end);
    }
    return result;
}

}  // namespace

void CifEdits::set(const CifItem& item, std::size_t row, const std::optional<std::string>& text) {
    Changes changes;
    write(item, row, text, changes);
    take(std::move(changes));
}

void CifEdits::write(const CifItem& item, std::size_t row, const std::optional<std::string>& text,
                     Changes& changes) const {
    const CifValue value = item[row];
    const std::pair key(bytes_.begin_of(value.raw), value.raw.size());
    const bool stays =
        text ? !value.is_none() && with_plain_line_ends(*text) == value.content() : value.is_none();
    if (stays) {
        changes.values.erase(key);
        changes.same.push_back(key);
        return;
    }
    std::string written =
        text ? written_value(*text, value.quoting(), bytes_.place_of(value.raw)) : "?";
    const bool touches_tag = value.raw.empty() && !CifBytes::is_line_end(written.front());
    if (touches_tag) written = std::string(1, ' ').append(written);
    if (bytes_.touches_comment(bytes_.end_of(value.raw))) written += ' ';
    changes.values[key] = std::move(written);
}

/// Needs no memory, so that a change is done as a whole.
void CifEdits::take(Changes changes) {
    for (const auto& key : changes.same) values_.erase(key);
    for (const auto& [key, written] : changes.values) values_.erase(key);
    values_.merge(changes.values);
}

CifEdits::Neighbour CifEdits::neighbour_of_new(std::size_t block, std::string_view tag) const {
    const CifItem* const item = neighbour_of(tag, document_.items(block));
    const std::size_t end =
        item ? end_of_item(*item, bytes_) : bytes_.offset_of(document_.end_of_heading(block));
    return {bytes_.behind_comment(end), item ? common_words(tag, item->tag()) : 0};
}

/// Where it would be if the additions before it were in the file already.
void CifEdits::keep(std::size_t block, Addition added, const Neighbour& item) {
    Additions& additions = additions_[block];
    added.at = item.end;
    std::size_t common = item.words_in_common, nearest = added.at;
    auto neighbour = additions.end();
    auto first_there = additions.end();
    for (auto one = additions.begin(); one != additions.end(); ++one) {
        if (one->tag == added.tag) {
            one->text = std::move(added.text);
            return;
        }
        if (one->at == added.at && first_there == additions.end()) first_there = one;
        const std::size_t words = common_words(added.tag, one->tag);
        if (words < common || (words == common && one->at < nearest)) continue;
        neighbour = one;
        common = words;
        nearest = one->at;
    }
    if (neighbour == additions.end()) {
        additions.insert(first_there, std::move(added));
    } else {
        added.at = nearest;
        additions.insert(std::next(neighbour), std::move(added));
    }
}

void CifEdits::add(std::size_t block, std::string_view tag, const std::string& text) {
    const Neighbour neighbour = neighbour_of_new(block, tag);
    const std::string_view line_end = bytes_.line_end_at(neighbour.end);
    const std::string line =
        style_at(neighbour.end, document_.items(block), bytes_).before_value(tag);
    const std::string value =
        written_value(text, CifQuoting::bare, {bytes_.is_version_2(), line_end, line.size(), 0});
    std::string written(line_end);
    const bool in_next_line = CifBytes::is_line_end(value.front());
    written += in_next_line ? line.substr(0, line.find_last_not_of(" \t") + 1) : line;
    written += value;
    keep(block, {0, in_lower_case(tag), std::move(written)}, neighbour);
}

void CifEdits::add(std::size_t block, std::string_view tag, const std::vector<std::string>& texts) {
    if (texts.size() == 1) return add(block, tag, texts.front());
    const Neighbour neighbour = neighbour_of_new(block, tag);
    const std::string_view line_end = bytes_.line_end_at(neighbour.end);
    const std::string_view indent = style_at(neighbour.end, document_.items(block), bytes_).indent;
    std::string written;
    const auto begin_line = [&] { written.append(line_end).append(indent); };
    begin_line();
    written += "loop_";
    begin_line();
    written += tag;
    for (const std::string& text : texts) {
        const std::string value = written_value(
            text, CifQuoting::bare, {bytes_.is_version_2(), line_end, indent.size(), 0});
        if (value.front() != ';' && !CifBytes::is_line_end(value.front())) begin_line();
        if (value.front() == ';') written += line_end;
        written += value;
    }
    keep(block, {0, in_lower_case(tag), std::move(written)}, neighbour);
}

/// The last column of a loop, which may have no rows.
const CifItem& CifEdits::last_column(const CifItem& item) const {
    const CifBlock::Items items = document_.items(document_.block_at(item.origin()));
    return **std::find_if(items.begin(), items.end(), [&item](const CifItem* other) {
        return other->origin() == item.origin() && other->column() + 1 == item.columns();
    });
}

void CifEdits::set_rows(const CifItem& item, std::vector<CifRow> rows) {
    if (rows.empty()) rows.emplace_back();
    Changes changes;
    for (const CifRow& row : rows) {
        if (!row.old) static_cast<void>(new_row(item, row, bytes_, 0));
        for (const auto& [column, text] : row.values) {
            if (row.old) write(*column, *row.old, text, changes);
        }
    }
    const bool is_one_value = !item.in_loop() && rows.size() == 1;
    if (is_one_value && !rows[0].old) {
        write(item, 0, rows[0].values.empty() ? std::nullopt : rows[0].values[0].second, changes);
    }
    if (is_one_value) {
        loops_.erase(item.origin());
    } else {
        const CifItem& column = item.size() == 0 ? last_column(item) : item;  // rows go behind it
        loops_.insert_or_assign(item.origin(), Loop{&column, std::move(rows)});
    }
    take(std::move(changes));
}

Splices CifEdits::splices() const {
    Splices all;
    CifBytes::Values values = values_;
    for (const auto& [origin, loop] : loops_) {
        const auto append = loop.item->in_loop() ? append_rows : append_new_loop;
        append(*loop.item, loop.rows, bytes_, values, all);
    }
    for (auto& [place, written] : values) {
        const auto& [begin, size] = place;
        all.push_back({begin, std::string(bytes_.all().substr(begin, size)), written});
    }
    for (const auto& [block, additions] : additions_) {
        for (const Addition& added : additions) all.push_back({added.at, "", added.text});
    }
    // What is added at a place stands before what is replaced from there on.
    std::stable_sort(all.begin(), all.end(), [](const Splice& a, const Splice& b) {
        return a.from != b.from ? a.from < b.from : a.before.empty() && !b.before.empty();
    });
    return joined(std::move(all), bytes_.line_end());
}
