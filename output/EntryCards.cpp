#include "output/EntryCards.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "comparison/Reference.h"
#include "markup/DisplayedText.h"
#include "output/html_text.h"
#include "output/reader_fields.h"
#include "tasks/item_part.h"
#include "tasks/numbers_in_text.h"
#include "text/Position.h"

namespace {

using Fields = std::vector<EntryField>;
using Place = ReaderField::Place;

constexpr ReaderField other_field = {"", Place::remarks, nullptr, ""};

/// A field that says nothing new beside another with the same text.
constexpr struct {
    const char *label, *other;
} repetitions[] = {
    {"Moiety Formula", "Formula"},
    {"Synonym", "Compound Name"},
    {"Temperature (text)", "Temperature (K)"},
    {"Density (KOVR)", "Density (author)"},
};

const EntryField* field_named(const Fields& fields, std::string_view label) {
    const auto field = std::find_if(fields.begin(), fields.end(), [label](const EntryField& known) {
        return known.label == label;
    });
    return field == fields.end() ? nullptr : &*field;
}

bool repeats_another(const Fields& fields, const EntryField& field) {
    if (!field.matches.empty()) return false;
    return std::any_of(std::begin(repetitions), std::end(repetitions), [&](const auto& repetition) {
        if (std::string_view(repetition.label) != field.label) return false;
        const EntryField* const other = field_named(fields, repetition.other);
        return other && DisplayedText(other->item).text() == DisplayedText(field.item).text();
    });
}

/// The three numbers of lengths or angles; nothing where the text has others.
std::vector<TextItem> values_of(const TextItem& item) {
    std::vector<TextItem> values;
    const std::vector<SearchedNumber> numbers = numbers_in(item.characters());
    const bool has_sign =
        std::any_of(numbers.begin(), numbers.end(),
                    [](const SearchedNumber& number) { return number.is_negative; });
    if (numbers.size() != 3 || has_sign) return values;
    values.reserve(numbers.size());
    for (const SearchedNumber& number : numbers) values.push_back(part_of(item, number.place));
    return values;
}

/// Whether the numbers are those of the other row, or those rounded.
bool has_same_numbers(const EntryCards::CellRow& row, const EntryCards::CellRow& other) {
    const std::vector<SearchedNumber> numbers = numbers_in(row.row.field->item.characters());
    const std::vector<SearchedNumber> others = numbers_in(other.row.field->item.characters());
    return std::equal(numbers.begin(), numbers.end(), others.begin(), others.end(),
                      [](const SearchedNumber& a, const SearchedNumber& b) {
                          return a.may_stand_for(b) || b.may_stand_for(a);
                      });
}

/// The value of the first number, as it is written but for its uncertainty.
std::string first_number(std::string_view text) {
    const std::vector<SearchedNumber> numbers = numbers_in(text);
    if (numbers.empty()) return {};
    std::string value(numbers.front().whole);
    if (!numbers.front().decimals.empty()) value.append(".").append(numbers.front().decimals);
    return value;
}

}  // namespace

EntryCards::EntryCards(const Fields& fields) {
    std::map<std::string_view, const EntryField*> others;
    for (const EntryField& field : fields) others.emplace(field.label, &field);
    for (const ReaderField& reader : reader_fields()) {
        const auto field = others.find(reader.label);
        if (field == others.end()) continue;
        if (!repeats_another(fields, *field->second)) add(*field->second, reader);
        others.erase(field);
    }
    for (const auto& [label, field] : others) add(*field, other_field);
    leave_out_same_cell();
}

/// Takes the reduced cell away where it is the cell.
void EntryCards::leave_out_same_cell() {
    constexpr std::string_view reduced = "Reduced ";
    const auto is_reduced = [&](const CellRow& row) {
        return std::string_view(row.row.field->label).starts_with(reduced);
    };
    const auto first = std::find_if(cell_.begin(), cell_.end(), is_reduced);
    is_reduced_ = first != cell_.end() && std::all_of(first, cell_.end(), [&](const CellRow& row) {
                      if (!row.row.field->matches.empty()) return false;
                      return std::any_of(cell_.begin(), first, [&](const CellRow& other) {
                          return std::string_view(row.row.field->label).substr(reduced.size()) ==
                                     other.row.field->label &&
                                 has_same_numbers(row, other);
                      });
                  });
    if (is_reduced_) cell_.erase(first, cell_.end());
}

const EntryCards::Row* EntryCards::head(std::string_view label) const {
    const auto row = std::find_if(head_.begin(), head_.end(), [label](const Row& known) {
        return known.field->label == label;
    });
    return row == head_.end() ? nullptr : &*row;
}

std::string EntryCards::link(const Row& row) {
    if (std::string_view(row.field->label) != "DOI") return {};
    return link_of_doi(row.field->item.characters());
}

const EntryCards::Row* EntryCards::name() const {
    for (const char* const label : {"Compound Name", "Formula", "Identifier"}) {
        if (const Row* const row = head(label)) return row;
    }
    return nullptr;
}

std::vector<EntryCards::Row> EntryCards::rest_of_head() const {
    std::vector<Row> rest;
    const Row* const top = name();
    for (const Row& row : head_) {
        if (&row != top) rest.push_back(row);
    }
    return rest;
}

std::string EntryCards::first_length() const {
    const auto lengths = std::find_if(cell_.begin(), cell_.end(), [](const CellRow& row) {
        return std::string_view(row.row.field->label) == "Cell Lengths";
    });
    return lengths == cell_.end() ? "" : first_number(lengths->row.field->item.characters());
}

std::string EntryCards::year() const {
    const Row* const row = head("Literature Reference");
    if (!row) return {};
    const std::string text = DisplayedText(row->field->item).text();
    const auto reference = read_reference(text);
    if (!reference) return {};
    const auto year = std::find_if(
        reference->parts.begin(), reference->parts.end(),
        [](const Reference::Part& part) { return part.reason == Finding::Reason::year; });
    return text.substr(year->range.from(), year->range.length());
}

void EntryCards::add(const EntryField& field, const ReaderField& reader) {
    Row row{&field, reader.shown ? reader.shown : field.label, reader.unit};
    const std::optional<SearchedNumber> number = whole_number(field.item.characters());
    if (reader.place == Place::head) return head_.push_back(row);
    const std::string_view title = title_of(reader.place);
    if (cards_.empty() || cards_.back().title != title) cards_.push_back({title, {}});
    if (reader.place == Place::cell) {
        std::vector<TextItem> values = number ? std::vector{field.item} : values_of(field.item);
        if (!values.empty()) return cell_.push_back({row, std::move(values)});
    }
    if (!number) {
        const bool has_unit =
            *row.unit && field.item.characters().ends_with(' ' + std::string(row.unit));
        row.unit_at_end = has_unit ? row.unit : "";
        row.unit = "";
    }
    cards_.back().rows.push_back(row);
}
