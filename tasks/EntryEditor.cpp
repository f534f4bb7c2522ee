#include "tasks/EntryEditor.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "entries/CodedText.h"
#include "entries/field_edit.h"
#include "entries/pass_on_bad_alloc.h"
#include "markup/RichTextTarget.h"
#include "tasks/EntryFields.h"
#include "tasks/Losses.h"
#include "tasks/TextReplacement.h"
#include "tasks/edits_in_json.h"
#include "tasks/row_named.h"
#include "text/TextItem.h"

namespace {

constexpr std::string_view cif_text = "cif-text";  // as texts with styles stand in files
constexpr std::string_view pasted = "unicode";

bool has_styles(const Field& field) { return field_writing(field.label) == FieldWriting::text; }

/// The kind of text that a field is written in.
const Source& kind_written(const Field& field, const FieldText& now) {
    return has_styles(field) ? *row_named(sources(), cif_text) : *now.source;
}

/// Throws std::invalid_argument for what a text of that kind cannot be.
TextItem item_of(const Source& kind, const THandle<InputTextStyleFinder>& finder,
                 const std::string& text) {
    try {
        return {finder, text};
    } catch (const std::exception& error) {
        pass_on_bad_alloc(error);
        throw std::invalid_argument(std::string("expected ") + kind.help);
    }
}

}  // namespace

void EntryEditor::set(std::size_t index, const Field& field, const std::string& text,
                      const Source* from) {
    attempt(index, field, [&] { edit(index, field, in_field(index, field, text, from)); });
}

void EntryEditor::update(std::size_t index, const Field& field, const std::string& text) {
    attempt(index, field, [&] {
        const std::string now = text_of(entry(index), field).text;
        if (now != text && as_in_json(now) != text) edit(index, field, text);
    });
}

void EntryEditor::replace(std::size_t index, const Field& field, const std::string& old,
                          const std::string& text, const Source* from) {
    attempt(index, field, [&] {
        const FieldText now = text_of(entry(index), field);
        if (now.text.empty()) return;
        const TextReplacement part(kind_written(field, now), now.text, old);
        if (!part.is_there()) return;
        const bool is_ready = !part.is_seen() && !from;
        edit(index, field, part.with(is_ready ? text : in_field(index, field, text, from)));
    });
}

template <class Edit>
void EntryEditor::attempt(std::size_t index, const Field& field, const Edit& edit) {
    const std::size_t noted = problems_.size();
    try {
        edit();
    } catch (const std::exception& error) {
        pass_on_bad_alloc(error);
        problems_.resize(noted);
        problems_.push_back(problem_of(index, field));
        problems_.back().what = error.what();
    }
}

const CifEntry& EntryEditor::entry(std::size_t index) {
    if (index_ != index) {
        index_.reset();  // reading may fail
        entry_.emplace(entries_[index]);
        index_ = index;
    }
    return *entry_;
}

/// The text as the field has it in the file.
std::string EntryEditor::in_field(std::size_t index, const Field& field, const std::string& text,
                                  const Source* from) {
    if (!from && has_styles(field)) from = row_named(sources(), pasted);
    if (!from) return text;
    const RichTextTarget& target = *row_named(rich_text_targets(), cif_text);
    const bool is_coded = from->name == cif_text;
    const THandle<InputTextStyleFinder> finder = from->make_finder();
    const TextItem item = item_of(*from, finder, text);
    if (!has_styles(field)) return is_coded ? CodedText(text).unicode() : text;
    if (is_coded) return text;
    std::vector<Problem> notes;
    if (from->note_doubts) from->note_doubts(*finder, notes);
    Losses(target).note_styles(item, notes);
    add(index, field, std::move(notes));
    std::string coded = item.mark_up_text(*target.make_generator());
    // Files of CIF 2 hold what others have codes for.
    return entries_.document().is_version_2() ? CodedText(coded).in_utf8() : coded;
}

void EntryEditor::edit(std::size_t index, const Field& field, const std::string& text) {
    if (has_styles(field)) {
        const Source& kind = *row_named(sources(), cif_text);
        const THandle<InputTextStyleFinder> finder = kind.make_finder();
        const TextItem item(finder, text);
        std::vector<Problem> doubts;
        kind.note_doubts(*finder, doubts);
        add(index, field, std::move(doubts));
    }
    const std::optional<std::size_t> common =
        edit_field(entries_, index, field.label, text, edits_);
    if (common) {
        Shared& shared = shared_[{entries_.common_block_of(index), &field}];
        shared.block = *common;
        shared.entries.push_back(index);
    }
    if (first_change_ || edits_.empty()) return;
    first_change_ = problem_of(index, field);
    if (common) first_change_->found = entries_.document().name_of(*common);
}

std::vector<Problem> EntryEditor::problems() const {
    std::vector<Problem> problems = problems_;
    if (shared_.empty()) return problems;
    std::map<const CifBlock*, std::vector<std::size_t>> sharers;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        sharers[entries_.common_block_of(i)].push_back(i);
    }
    for (const auto& [place, shared] : shared_) {
        const std::vector<std::size_t>& all = sharers[place.first];
        const std::set<std::size_t> edited(shared.entries.begin(), shared.entries.end());
        if (edited.size() == all.size()) continue;
        Problem& note = problems.emplace_back(problem_of(shared.entries.front(), *place.second));
        note.level = Problem::Level::note;
        note.what = "stands in data_";
        note.what.append(entries_.document().name_of(shared.block)).append(", and so changes for ");
        const auto other = std::find_if(all.begin(), all.end(), [&edited](std::size_t entry) {
            return edited.count(entry) == 0;
        });
        note.what += entries_.document().name_of(entries_.block_of(*other));
        const std::size_t more = all.size() - edited.size() - 1;
        if (more > 0) note.what.append(" and ").append(std::to_string(more)).append(" more");
        note.what += ", too";
    }
    return problems;
}

Problem EntryEditor::problem_of(std::size_t index, const Field& field) const {
    Problem problem;
    problem.block = std::string(entries_.document().name_of(entries_.block_of(index)));
    problem.item = field.label;
    return problem;
}

void EntryEditor::add(std::size_t index, const Field& field, std::vector<Problem> problems) {
    for (Problem& problem : problems) {
        problem.block = std::string(entries_.document().name_of(entries_.block_of(index)));
        problem.item = field.label;
        problem.column = 0;
        problems_.push_back(std::move(problem));
    }
}
