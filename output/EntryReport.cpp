#include "output/EntryReport.h"

#include <cstring>

#include "output/html_text.h"
#include "output/match_reason.h"
#include "tasks/item_part.h"
#include "text/Position.h"

namespace {

std::string found(const EntryCards::Row& row) { return "found: " + reason_of(row.field->matches); }

constexpr ReportWriter::Place in_cell = ReportWriter::Place::cell;

}  // namespace

EntryReport::EntryReport(const ReportMedium& medium) : writer_(medium) {}
EntryReport::~EntryReport() = default;

LaidOutPart EntryReport::entry(const std::string& file, const std::string& block,
                               const std::vector<EntryField>& fields) {
    const EntryCards cards(fields);
    std::string report = section(cards, file, block);
    for (const EntryCards::Card& card : cards.cards()) {
        report +=
            writer_.element(writer_.medium().subtitle, writer_.words(std::string(card.title)));
        if (card.title == title_of(ReaderField::Place::cell)) report += cell(cards);
        std::string rows;
        for (const EntryCards::Row& shown : card.rows) rows += row(shown);
        report += writer_.list(rows);
    }
    return {std::move(report)};
}

/// The entry's name, and what identifies it.
std::string EntryReport::section(const EntryCards& cards, const std::string& file,
                                 const std::string& block) const {
    const EntryCards::Row* const name = cards.name();
    const std::string block_name = "data_" + block;
    std::string rows;
    if (name && !name->field->matches.empty()) {
        rows = writer_.row("found", writer_.words(reason_of(name->field->matches)));
    }
    for (const EntryCards::Row& shown : cards.rest_of_head()) rows += row(shown);
    const EntryCards::Row* const identifier = cards.head("Identifier");
    const bool is_told = !name || (identifier && identifier->field->item.characters() == block);
    rows += writer_.row("File",
                        writer_.plain(without_folders(file) + (is_told ? "" : ", " + block_name)));
    return writer_.title(name ? writer_.mark_up(name->field->item) : writer_.plain(block_name)) +
           writer_.list(rows);
}

std::string EntryReport::row(const EntryCards::Row& row) const {
    const ReportMedium& medium = writer_.medium();
    const std::string link = EntryCards::link(row);
    const TextItem& item = row.field->item;
    std::string text;
    if (*row.unit_at_end) {
        const std::size_t end = item.characters().size() - std::strlen(row.unit_at_end) - 1;
        text = writer_.mark_up(part_of(item, {0, to_position(end)}));
    } else {
        text = writer_.mark_up(item);
    }
    if (!link.empty()) text = medium.link(text, link);
    const char* const unit = *row.unit ? row.unit : row.unit_at_end;
    if (*unit) text.append(medium.unit).append(writer_.words(unit));
    if (!row.field->matches.empty()) {
        text += writer_.element(medium.found, writer_.words(found(row)));
    }
    return writer_.row(row.shown, text);
}

std::string EntryReport::cell(const EntryCards& cards) const {
    if (cards.cell().empty()) return {};
    const ReportMedium::Table& table = writer_.medium().cell;
    std::string rows;
    for (const EntryCards::CellRow& shown : cards.cell()) {
        std::string cells = writer_.element(table.label, writer_.words(shown.row.shown, in_cell));
        for (const TextItem& value : shown.values) {
            cells +=
                writer_.element(shown.values.size() == 1 ? writer_.medium().wide_cell : table.cell,
                                writer_.mark_up(value, in_cell));
        }
        cells += writer_.element(table.cell, writer_.words(shown.row.unit, in_cell));
        rows += writer_.element(table.row, cells);
        if (shown.row.field->matches.empty()) continue;
        rows += writer_.element(table.note, writer_.words(found(shown.row), in_cell));
    }
    std::string cell = writer_.element(table.table, rows);
    if (cards.is_reduced()) {
        cell +=
            writer_.element(writer_.medium().paragraph, writer_.words(EntryCards::reduced_note));
    }
    return cell;
}
