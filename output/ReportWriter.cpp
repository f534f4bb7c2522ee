#include "output/ReportWriter.h"

#include "finders/UnicodeTextStyleFinder.h"
#include "tasks/row_named.h"

namespace {

const RichTextTarget* target_named(std::string_view name) {
    return row_named(rich_text_targets(), name);
}

}  // namespace

ReportWriter::ReportWriter(const ReportMedium& medium)
    : medium_(medium),
      targets_{target_named(medium.name), target_named(medium.cells)},
      generators_{targets_[0]->make_generator(), targets_[1]->make_generator()} {}

std::string ReportWriter::mark_up(const TextItem& item, Place place) const {
    std::string written = item.mark_up_text(*generators_[static_cast<std::size_t>(place)]);
    if (place == Place::text) return written;
    std::string in_one_line;
    for (const char c : written) {
        if (c == '\n') {
            in_one_line += medium_.line_end;
        } else {
            in_one_line += c;
        }
    }
    return in_one_line;
}

std::string ReportWriter::plain(const std::string& text, Place place) const {
    return mark_up(TextItem(make_handle<InputTextStyleFinder>(), text), place);
}

std::string ReportWriter::words(const std::string& text, Place place) const {
    return mark_up(TextItem(make_handle<UnicodeTextStyleFinder>(), text), place);
}

std::string ReportWriter::element(const Around& around, std::string_view mark_up) {
    return std::string(around.before).append(mark_up).append(around.behind);
}

std::string ReportWriter::title(std::string mark_up) const {
    // Behind a blank, signs at the end would close a heading of Markdown.
    const std::size_t last = mark_up.find_last_not_of('#');
    if (last != std::string::npos && mark_up[last] == ' ' && last + 1 < mark_up.size()) {
        mark_up.insert(last + 1, 1, '\\');
    }
    return element(medium_.title, mark_up);
}

std::string ReportWriter::row(const std::string& label, const std::string& mark_up) const {
    return element(medium_.row, words(label) + medium_.behind_label + mark_up);
}

std::string ReportWriter::list(const std::string& rows) const {
    return rows.empty() ? rows : element(medium_.list, rows);
}

std::string ReportWriter::table_row(const Table& table, const std::string& label,
                                    const Around& cell, const std::vector<std::string>& cells) {
    std::string row = element(table.label, label);
    for (const std::string& mark_up : cells) row += element(cell, mark_up);
    return element(table.row, row);
}
