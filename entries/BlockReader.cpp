#include "entries/BlockReader.h"

#include <algorithm>
#include <cmath>

#include "entries/cif_tags.h"
#include "entries/cif_text.h"
#include "entries/place_in_value.h"

namespace {

// No number of a crystal comes near; multiplied, it is still one.
constexpr double beyond_use = 1e30;

}  // namespace

/// The block's own item where it has a value; only a block itself knows its number in the database.
const CifItem* BlockReader::find(std::string_view tag) const {
    const CifItem* const own = block_.find(tag);
    if (!common_ || (own && own->has_text()) || tag == cif_tags::identifier) return own;
    const CifItem* const common = common_->find(tag);
    return common ? common : own;
}

const CifItem* BlockReader::item(std::string_view tag) {
    const CifItem* const found = find(tag);
    if (found) asked_for_.push_back(found);
    return found;
}

CifBlock::Items BlockReader::items(std::string_view prefix) {
    CifBlock::Items found = block_.find_all(prefix);
    for (const CifItem* item : common_ ? common_->find_all(prefix) : CifBlock::Items()) {
        if (find(item->tag()) == item) found.push_back(item);
    }
    asked_for_.insert(asked_for_.end(), found.begin(), found.end());
    return found;
}

std::vector<std::string> BlockReader::texts(std::string_view tag) {
    std::vector<std::string> texts;
    const CifItem* const found = item(tag);
    for (std::size_t row = 0; found && row < found->size(); ++row) {
        texts.push_back((*found)[row].text());
    }
    return texts;
}

BlockReader::Value BlockReader::first_value(Tags tags) {
    Value value;
    for (const std::string_view tag : tags) {
        const CifItem* const found = item(tag);
        for (std::size_t row = 0; found && !value && row < found->size(); ++row) {
            value.text = (*found)[row].text();
            if (!value.text.empty()) value = {found, std::move(value.text), row};
        }
    }
    return value;
}

std::string BlockReader::first_text(Tags tags) {
    const Value value = first_value(tags);
    return value ? one_line(value.text) : "";
}

std::string BlockReader::first_decoded_text(Tags tags) {
    const Value value = first_value(tags);
    return value ? decoded(value) : "";
}

std::string BlockReader::decoded(const Value& value) {
    std::string line = one_line(value.text);
    if (!CodedText::may_hold_codes(line)) return line;
    const CodedText text(line);
    note_doubts(value, text);
    return text.unicode();
}

void BlockReader::note_doubts(const Value& value, const CodedText& text) {
    std::vector<Problem> doubts;
    text.append_doubts(doubts);
    for (const Problem& doubt : doubts) {
        Problem& problem = add_problem(*value.item, doubt.code, doubt.what);
        problem.level = doubt.level;
        problem.found = doubt.found;
        problem.offset = offset_of(value, text.text().substr(0, doubt.column - 1));
    }
}

std::optional<UncertainValue> BlockReader::number(Tags tags) {
    const Value value = first_value(tags);
    if (!value) return std::nullopt;
    const std::optional<UncertainValue> read = read_number(value.text);
    const bool is_usable = read && std::abs(read->value) < beyond_use;
    if (!is_usable) add_unexpected(value, "not-a-number", "a number");
    return is_usable ? read : std::nullopt;
}

Problem& BlockReader::add_block_problem(const CifItem& at, const char* code, std::string what) {
    Problem& problem = add_block_problem(at.origin(), code, std::move(what));
    problem.offset = offset_of(at.tag().data());
    return problem;
}

Problem& BlockReader::add_block_problem(const char* place, const char* code, std::string what) {
    const std::size_t block = document_.block_at(place);
    if (block != index_ && !tells_of_common_) return untold_ = {};
    Problem problem;
    problem.code = code;
    problem.line = document_.line_of(place);
    problem.offset = offset_of(place);
    problem.block = std::string(document_.name_of(block));
    problem.what = std::move(what);
    problems_.push_back(std::move(problem));
    return problems_.back();
}

Problem& BlockReader::add_problem(const CifItem& item, const char* code, std::string what) {
    Problem& problem = add_block_problem(item, code, std::move(what));
    problem.item = in_lower_case(item.tag());
    return problem;
}

Problem& BlockReader::add_problem(const Value& value, const char* code, std::string what) {
    Problem& problem = add_problem(*value.item, code, std::move(what));
    problem.offset = offset_of(value, "");
    problem.found = one_line(value.text);
    return problem;
}

Problem& BlockReader::add_unexpected(const Value& value, const char* code, std::string expected) {
    Problem& problem = add_problem(value, code, "");
    problem.expected = std::move(expected);
    return problem;
}

std::size_t BlockReader::offset_of(const char* place) const {
    return static_cast<std::size_t>(place - document_.bytes().data());
}

std::size_t BlockReader::offset_of(const Value& value, std::string_view before) const {
    return offset_of(place_in_value((*value.item)[value.row], before));
}

void BlockReader::note_repetitions() {
    note_repetitions(block_);
    if (common_ && tells_of_common_) note_repetitions(*common_);
}

void BlockReader::note_repetitions(const CifBlock& block) {
    const CifBlock::Items repetitions = block.repetitions();
    if (repetitions.empty()) return;
    std::sort(asked_for_.begin(), asked_for_.end());
    for (const CifItem* repeated : repetitions) {
        const CifItem* const first = block.find(repeated->tag());
        if (!std::binary_search(asked_for_.begin(), asked_for_.end(), first)) continue;
        add_problem(*repeated, "item-twice", "given again; the first value counts");
    }
}
