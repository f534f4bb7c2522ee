#include "fuzz/EditTrial.h"

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

#include "fuzz/ExpectedValues.h"
#include "fuzz/writable_text.h"

EditTrial::EditTrial(std::string cif) : session_(std::move(cif)) {
    try {
        before_ = read_cif_tokens(session_.bytes());
    } catch (const std::runtime_error& error) {
        throw CifError(1, error.what(), {});
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

bool EditTrial::has_item(std::size_t block, const std::string& tag) const {
    return std::any_of(before_.items.begin(), before_.items.end(),
                       [&](const auto& item) { return item.block == block && item.tag == tag; });
}

std::size_t EditTrial::number_in_file(const Place& place) const {
    const CifReading::Item& item = before_.items[place.item];
    return item.first + place.row * item.stride;
}

std::string EditTrial::readers() const {
    std::string ours = disagreement_with_document(session_.entries().document(), before_);
    if (!ours.empty() || before_.is_version_2) return ours;
    return disagreement_with_gemmi(session_.bytes(), before_);
}

void EditTrial::undo_all() {
    while (session_.undo()) {
    }
}

template <class Check>
std::string EditTrial::applied(const Splices& splices, const Check& check) {
    std::string complaint;
    try {
        session_.apply(splices);
        const CifReading after = read_cif_tokens(session_.bytes());
        if (!after.is_version_2) complaint = disagreement_with_gemmi(session_.bytes(), after);
        if (complaint.empty()) complaint = check(after);
        if (complaint.empty()) complaint = complaint_of_texts(session_.entries().document(), after);
    } catch (const std::runtime_error& error) {  // also what is not CIF
        complaint = error.what();
    }
    undo_all();
    if (complaint.empty() && session_.is_changed()) complaint = "is not as it was";
    return complaint.empty() ? complaint : complaint.append(quoted(splices));
}

std::string EditTrial::same_texts() const {
    const CifDocument& document = session_.entries().document();
    std::string misread = complaint_of_texts(document, before_);
    if (!misread.empty()) return misread;
    CifEdits all(document);
    for (std::size_t i = 0; i < items(); ++i) {
        const CifItem& same = item(i);
        for (std::size_t row = 0; row < rows(i); ++row) {
            Text text;
            if (!same[row].is_none()) text = same[row].content();
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
    const Splices splices = edits.splices();
    ExpectedValues expected = as_they_are(before_);
    std::set<std::string> replaced;
    for (const Change& change : done) {
        const std::size_t value = number_in_file(places_[change.value]);
        expected[value] = {std::nullopt, change.text};
        replaced.insert(before_.values[value]);
    }
    const bool is_all = std::all_of(splices.begin(), splices.end(), [&](const Splice& splice) {
        return replaced.count(splice.before) > 0;
    });
    if (!is_all || splices.size() > done.size()) return "more is changed" + quoted(splices);
    return applied(splices, [&](const CifReading& after) -> std::string {
        if (after.outline != before_.outline) return "other tags";
        if (after.comments != before_.comments) return "other comments";
        return complaint_of_values(after, expected);
    });
}

std::string EditTrial::add(const Added& added) {
    const std::size_t block = added.block;
    const std::string &tag = added.tag, &text = added.text;
    if (has_item(block, tag)) return {};
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
            if (after.comments != before_.comments) return "other comments";
            ExpectedValues expected = as_they_are(before_);
            expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(item.first),
                            {std::nullopt, text});
            return complaint_of_values(after, expected);
        }
        return "it is in another block";
    });
}

std::vector<CifRow> EditTrial::cif_rows(std::size_t number, const std::vector<Row>& rows) const {
    std::vector<CifRow> edited;
    for (const Row& row : rows) {
        edited.push_back({row.old, {}});
        for (const auto& [column, text] : row.values) {
            const std::size_t in_file = number - before_.items[number].column + column;
            edited.back().values.emplace_back(&item(in_file), text);
        }
    }
    return edited;
}

std::string EditTrial::set_rows(std::size_t number, const std::vector<Row>& rows) {
    const std::size_t column = number - before_.items[number].column, width = columns(number);
    const CifReading::Item& first = before_.items[column];
    const ExpectedValues before = as_they_are(before_);
    const auto begin = before.begin() + static_cast<std::ptrdiff_t>(first.first);
    ExpectedValues expected(before.begin(), begin);
    Writable all = Writable::yes;
    std::string plan = "\n rows of " + first.tag + ':';
    for (const Row& row : rows) {
        plan.append(row.old ? ' ' + std::to_string(*row.old) : " new");
        const auto old = begin + static_cast<std::ptrdiff_t>(row.old.value_or(0) * width);
        for (std::size_t i = 0; i < width; ++i) {
            expected.push_back(row.old ? old[static_cast<std::ptrdiff_t>(i)] : ExpectedValue());
        }
        for (const auto& [i, text] : row.values) {
            expected[expected.size() - width + i] = {std::nullopt, text};
            all = std::min(all, writable(text.value_or(""), before_.is_version_2));
        }
    }
    if (rows.empty()) expected.resize(expected.size() + width);
    const auto end = begin + static_cast<std::ptrdiff_t>(first.size * width);
    expected.insert(expected.end(), end, before.end());
    CifEdits edits(session_.entries().document());
    bool is_done = false;
    std::string complaint = complaint_of_refusal(
        [&] { edits.set_rows(item(number), cif_rows(number, rows)); }, all, is_done);
    if (!complaint.empty() || !is_done) return edits.empty() ? complaint : "is not forgotten";
    complaint = applied(edits.splices(), [&](CifReading after) -> std::string {
        if (!first.in_loop && after.items[column].in_loop) {
            const auto place = std::mismatch(after.outline.begin(), after.outline.end(),
                                             before_.outline.begin(), before_.outline.end());
            after.outline.erase(place.first);
        }
        if (after.outline != before_.outline) return "other tags";
        if (!same_in_any_order(after.comments, before_.comments)) return "other comments";
        return complaint_of_values(after, expected);
    });
    return complaint.empty() ? complaint : complaint + plan;
}

std::string EditTrial::all_at_once(const std::vector<Change>& changes, std::size_t number,
                                   const std::vector<Row>& rows, const std::vector<Added>& added) {
    // One step, for edits of the document as it is then.
    using Steps = std::vector<std::function<void(CifEdits&)>>;
    Steps steps;
    for (const Change& change : changes) {
        const Place& place = places_[change.value];
        steps.push_back(
            [&](CifEdits& edits) { edits.set(item(place.item), place.row, change.text); });
    }
    steps.push_back([&](CifEdits& edits) { edits.set_rows(item(number), cif_rows(number, rows)); });
    std::set<std::pair<std::size_t, std::string>> tags;
    for (const Added& one : added) {
        if (has_item(one.block, one.tag) || !tags.emplace(one.block, one.tag).second) continue;
        steps.push_back([&](CifEdits& edits) { edits.add(one.block, one.tag, one.text); });
    }
    CifEdits all(session_.entries().document());
    try {
        for (const auto& step : steps) step(all);
        const Splices splices = all.splices();
        for (const auto& step : steps) {
            CifEdits one(session_.entries().document());
            step(one);
            session_.apply(one.splices());
        }
        const CifReading expected = read_cif_tokens(session_.bytes());
        undo_all();
        return applied(splices, [&](const CifReading& after) -> std::string {
            if (after.outline != expected.outline) return "other tags";
            if (!same_in_any_order(after.comments, expected.comments)) return "other comments";
            ExpectedValues texts;
            for (std::size_t i = 0; i < expected.values.size(); ++i) {
                texts.push_back({std::nullopt, expected.text(i)});
            }
            return complaint_of_values(after, texts);
        });
    } catch (const UnwritableText&) {
        undo_all();
        return {};
    } catch (const std::runtime_error& error) {  // also what is not CIF
        undo_all();
        return error.what();
    }
}
