#include "fuzz/EditTrial.h"

#include <algorithm>
#include <utility>

#include "entries/written_value.h"
#include "fuzz/writable_text.h"

namespace {

/// What is wrong with the text of a value that shall have another.
std::string complaint_of_text(const CifReading& reading, std::size_t value,
                              const EditTrial::Text& text) {
    const std::optional<std::string> read = reading.text(value);
    if (!text) return read ? "not nothing but " + *read : "";
    if (read == with_line_feeds(*text)) return {};
    return "read as " + read.value_or("nothing") + " instead of " + *text;
}

std::string quoted(const Splices& splices) {
    std::string text;
    for (const Splice& splice : splices) {
        text.append("\n at ")
            .append(std::to_string(splice.from))
            .append(" <")
            .append(splice.before);
        text.append("> becomes <").append(splice.after).append(">");
    }
    return text;
}

/// Calls `edit`; what is wrong where it refuses texts or does not. `is_done` tells whether it has.
template <class Edit>
std::string complaint_of_refusal(const Edit& edit, Writable all, bool& is_done) {
    is_done = false;
    try {
        edit();
        is_done = true;
        return all == Writable::no ? "what no CIF file can hold is not refused" : "";
    } catch (const UnwritableText& refusal) {
        return all == Writable::yes ? std::string("refused: ") + refusal.what() : "";
    }
}

}  // namespace

EditTrial::EditTrial(std::string cif) : session_(std::move(cif)) {
    try {
        before_ = read_cif_tokens(session_.bytes());
    } catch (const std::runtime_error& error) {
        throw CifError(1, error.what());
    }
    for (std::size_t i = 0; i < items(); ++i) {
        for (std::size_t row = 0; row < rows(i); ++row) places_.push_back({i, row});
    }
}

const CifItem& EditTrial::item(std::size_t number) const {
    const std::size_t block = before_.items[number].block;
    std::size_t first = number;
    while (first > 0 && before_.items[first - 1].block == block) --first;
    return *session_.entries().document().items(block)[number - first];
}

std::size_t EditTrial::number_in_file(const Place& place) const {
    const CifReading::Item& item = before_.items[place.item];
    return item.first + place.row * item.stride;
}

std::string EditTrial::readers() const {
    const CifDocument& document = session_.entries().document();
    if (document.is_version_2() != before_.is_version_2) return "another version";
    std::vector<const CifItem*> all;
    for (std::size_t block = 0; block < document.blocks(); ++block) {
        for (const CifItem* const item : document.items(block)) all.push_back(item);
    }
    if (all.size() != items()) return "other items";
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i]->tag() != before_.items[i].tag) return "another tag: " + before_.items[i].tag;
        if (all[i]->size() != rows(i)) return "other rows: " + before_.items[i].tag;
        for (std::size_t row = 0; row < rows(i); ++row) {
            const std::string& raw = before_.values[number_in_file({i, row})];
            const std::string_view seen = (*all[i])[row].raw;
            if (seen != raw) return "the value " + raw + " is read as " + std::string(seen);
        }
    }
    return before_.is_version_2 ? "" : disagreement_with_gemmi(session_.bytes(), before_);
}

template <class Check>
std::string EditTrial::applied(const Splices& splices, const Check& check) {
    std::string complaint;
    try {
        session_.apply(splices);
        const CifReading after = read_cif_tokens(session_.bytes());
        if (!after.is_version_2) complaint = disagreement_with_gemmi(session_.bytes(), after);
        if (complaint.empty()) complaint = check(after);
    } catch (const std::runtime_error& error) {  // also what is not CIF
        complaint = error.what();
    }
    while (session_.undo()) {
    }
    if (complaint.empty() && session_.is_changed()) complaint = "is not as it was";
    return complaint.empty() ? complaint : complaint.append(quoted(splices));
}

std::string EditTrial::same_texts() const {
    const CifDocument& document = session_.entries().document();
    CifEdits all(document);
    for (std::size_t i = 0; i < items(); ++i) {
        const CifItem& same = item(i);
        for (std::size_t row = 0; row < rows(i); ++row) {
            Text text;
            if (!same[row].is_none()) text = same[row].content();
            if (before_.text(number_in_file({i, row})) != text)
                return "content of " + before_.items[i].tag + ": " + text.value_or("?");
            CifEdits edits(document);
            edits.set(same, row, text);
            all.set(same, row, text);
            if (!edits.splices().empty()) return before_.items[i].tag + quoted(edits.splices());
        }
    }
    return all.empty() && all.splices().empty() ? "" : "all together: " + quoted(all.splices());
}

std::string EditTrial::set(const std::vector<Change>& changes) {
    CifEdits edits(session_.entries().document());
    std::vector<Change> done;
    for (const Change& change : changes) {
        const Place& place = places_[change.value];
        bool is_done = false;
        const std::string complaint =
            complaint_of_refusal([&] { edits.set(item(place.item), place.row, change.text); },
                                 writable(change.text.value_or(""), before_.is_version_2), is_done);
        if (!complaint.empty()) return complaint + ": " + change.text.value_or("?");
        if (is_done) done.push_back(change);
        if (done.empty() && !edits.empty()) return "a refused text is not forgotten";
    }
    const auto check = [&](const CifReading& after) -> std::string {
        if (after.outline != before_.outline) return "other tags";
        if (after.comments != before_.comments) return "other comments";
        if (after.values.size() != before_.values.size()) return "other values";
        std::vector<bool> is_changed(after.values.size());
        for (const Change& change : done) {
            const std::size_t value = number_in_file(places_[change.value]);
            is_changed[value] = true;
            const std::string complaint = complaint_of_text(after, value, change.text);
            if (!complaint.empty()) return complaint;
        }
        for (std::size_t i = 0; i < is_changed.size(); ++i) {
            if (!is_changed[i] && after.values[i] != before_.values[i]) {
                return "another value: " + before_.values[i];
            }
        }
        return {};
    };
    const Splices splices = edits.splices();
    if (splices.size() > done.size()) return "more is changed" + quoted(splices);
    std::string complaint = applied(splices, check);
    if (!complaint.empty() || done.size() < 2) return complaint;
    for (const Change& change : done) {
        CifEdits one(session_.entries().document());
        one.set(item(places_[change.value].item), places_[change.value].row, change.text);
        session_.apply(one.splices());
    }
    return applied({}, check);
}

std::string EditTrial::add(std::size_t block, const std::string& tag, const std::string& text) {
    for (const CifReading::Item& item : before_.items) {
        if (item.block == block && item.tag == tag) return {};
    }
    CifEdits edits(session_.entries().document());
    bool is_done = false;
    const std::string complaint = complaint_of_refusal(
        [&] { edits.add(block, tag, text); }, writable(text, before_.is_version_2), is_done);
    if (!complaint.empty() || !is_done) return edits.empty() ? complaint : "is not forgotten";
    return applied(edits.splices(), [&](CifReading after) -> std::string {
        const auto& old = before_.outline;
        const auto place =
            std::mismatch(old.begin(), old.end(), after.outline.begin(), after.outline.end());
        if (place.second == after.outline.end()) return "no item is added";
        after.outline.erase(place.second);
        if (after.outline != old) return "not only an item is added";
        for (const CifReading::Item& item : after.items) {
            if (item.tag != tag || item.block != block) continue;
            if (item.in_loop) return "in a loop";
            const std::string added = complaint_of_text(after, item.first, text);
            if (!added.empty()) return added;
            after.values.erase(after.values.begin() + static_cast<std::ptrdiff_t>(item.first));
            if (after.values != before_.values) return "other values";
            return after.comments == before_.comments ? "" : "other comments";
        }
        return "it is in another block";
    });
}

std::string EditTrial::set_rows(std::size_t number, const std::vector<Row>& rows) {
    const std::size_t column = number - before_.items[number].column, width = columns(number);
    const CifReading::Item& first = before_.items[column];
    std::vector<CifRow> edited;
    struct Expected {
        std::optional<std::string> raw;
        Text text;
    };
    std::vector<Expected> expected;
    Writable all = Writable::yes;
    std::string plan = "\n rows of " + first.tag + ':';
    for (const Row& row : rows) {
        plan.append(row.old ? ' ' + std::to_string(*row.old) : " new");
        edited.push_back({row.old, {}});
        for (std::size_t i = 0; i < width; ++i) {
            expected.push_back({"?", {}});
            if (row.old) expected.back().raw = before_.values[first.first + *row.old * width + i];
        }
        for (const auto& [i, text] : row.values) {
            edited.back().values.emplace_back(&item(column + i), text);
            expected[expected.size() - width + i] = {std::nullopt, text};
            all = std::min(all, writable(text.value_or(""), before_.is_version_2));
        }
    }
    if (rows.empty()) expected.resize(width);
    CifEdits edits(session_.entries().document());
    bool is_done = false;
    const std::string complaint =
        complaint_of_refusal([&] { edits.set_rows(item(number), edited); }, all, is_done);
    if (!complaint.empty() || !is_done) return edits.empty() ? complaint : "is not forgotten";
    const std::string other = applied(edits.splices(), [&](CifReading after) -> std::string {
        const CifReading::Item changed = after.items[column];
        if (!first.in_loop && changed.in_loop) {
            const auto place = std::mismatch(after.outline.begin(), after.outline.end(),
                                             before_.outline.begin(), before_.outline.end());
            after.outline.erase(place.first);
        }
        if (after.outline != before_.outline) return "other tags";
        if (changed.size * width != expected.size()) return std::to_string(changed.size) + " rows";
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const std::size_t value = first.first + i;
            if (expected[i].raw && *expected[i].raw != after.values[value]) {
                return "another value: " + after.values[value] + " for " + *expected[i].raw;
            }
            if (expected[i].raw) continue;
            const std::string text = complaint_of_text(after, value, expected[i].text);
            if (!text.empty()) return text;
        }
        const auto begin = after.values.begin() + static_cast<std::ptrdiff_t>(first.first);
        const auto old = before_.values.begin() + static_cast<std::ptrdiff_t>(first.first);
        after.values.erase(begin, begin + static_cast<std::ptrdiff_t>(expected.size()));
        std::vector<std::string> rest(before_.values.begin(), old);
        rest.insert(rest.end(), old + static_cast<std::ptrdiff_t>(first.size * width),
                    before_.values.end());
        if (after.values != rest) return "other values";
        std::sort(after.comments.begin(), after.comments.end());
        std::vector<std::string> comments = before_.comments;
        std::sort(comments.begin(), comments.end());
        return after.comments == comments ? "" : "other comments";
    });
    return other.empty() ? other : other + plan;
}
