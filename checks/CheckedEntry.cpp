#include "checks/CheckedEntry.h"

#include <utility>

#include "checks/add_finding.h"
#include "entries/cif_text.h"
#include "entries/written_value.h"

const CifItem* CheckedEntry::item(std::string_view tag) const {
    const CifItem* const own = entry_.block.find(tag);
    if (!common_ || (own && own->has_text())) return own;
    const CifItem* const common = common_->find(tag);
    return common ? common : own;
}

CheckedEntry::Value CheckedEntry::value(const CifItem& item, std::size_t row) const {
    return {&item, row, one_line(item[row].text())};
}

CheckedEntry::Value CheckedEntry::first(std::string_view tag) const { return first({&tag, 1}); }

CheckedEntry::Value CheckedEntry::first(Tags tags) const {
    for (const std::string_view tag : tags) {
        const CifItem* const found = item(tag);
        for (std::size_t row = 0; found && row < found->size(); ++row) {
            Value first = value(*found, row);
            if (!first.text.empty()) return first;
        }
    }
    return {};
}

std::vector<CheckedEntry::Value> CheckedEntry::all(std::string_view tag) const {
    std::vector<Value> values;
    const CifItem* const found = item(tag);
    for (std::size_t row = 0; found && row < found->size(); ++row) {
        Value one = value(*found, row);
        if (!one.text.empty()) values.push_back(std::move(one));
    }
    return values;
}

std::optional<UncertainValue> CheckedEntry::number(std::string_view tag) const {
    return read_number(first(tag).text);
}

CheckFinding& CheckedEntry::add(std::string_view code, const Value& at, std::string expected) {
    CheckFinding& finding = add(code, (*at.item)[at.row].raw.data(), at.text, std::move(expected));
    finding.problem.item = in_lower_case(at.item->tag());
    return finding;
}

CheckFinding& CheckedEntry::add(std::string_view code, const char* place, std::string found,
                                std::string expected) {
    return add_finding(findings_, document_, code, place, std::move(found), std::move(expected));
}

std::optional<Splice> CheckedEntry::replaced(const Value& value, const std::string& text) const {
    CifEdits edits(document_);
    try {
        edits.set(*value.item, value.row, text);
    } catch (const UnwritableText&) {
        return std::nullopt;
    }
    const Splices splices = edits.splices();
    return splices.empty() ? std::nullopt : std::optional(splices.front());
}
