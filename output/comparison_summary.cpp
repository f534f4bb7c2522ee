#include "output/comparison_summary.h"

#include <algorithm>
#include <cstring>

#include "output/JsonWriter.h"

namespace {

using Counts = ComparisonSummary::Counts;

constexpr std::size_t column_width = 12;
constexpr char all_entries[] = "Entries";

const char* name_of_column(std::size_t verdict) { return name_of(static_cast<Verdict>(verdict)); }

void append_cell(std::string& row, const std::string& text) {
    row.append(column_width - std::min(column_width - 1, text.size()), ' ').append(text);
}

void append_row(std::string& table, std::size_t width, std::string label, const Counts& counts) {
    label.resize(std::max(width, label.size()), ' ');
    for (const unsigned long count : counts) append_cell(label, std::to_string(count));
    table.append(label).append("\n");
}

void write(JsonWriter& json, const Counts& counts) {
    for (std::size_t i = 0; i < counts.size(); ++i) {
        json.add_integer(name_of_column(i), static_cast<std::int64_t>(counts[i]));
    }
}

}  // namespace

bool has_any(const Counts& counts) {
    return std::any_of(counts.begin(), counts.end(), [](unsigned long count) { return count > 0; });
}

std::string summary_as_text(const ComparisonSummary& summary, std::span<const Field> compared) {
    std::size_t width = std::strlen(all_entries);
    for (std::size_t i = 0; i < summary.fields.size(); ++i) {
        if (has_any(summary.fields[i])) width = std::max(width, std::strlen(compared[i].label));
    }
    std::string table(width, ' ');
    for (std::size_t i = 0; i < summary.entries.size(); ++i) append_cell(table, name_of_column(i));
    table += '\n';
    append_row(table, width, all_entries, summary.entries);
    for (std::size_t i = 0; i < summary.fields.size(); ++i) {
        if (has_any(summary.fields[i])) {
            append_row(table, width, compared[i].label, summary.fields[i]);
        }
    }
    return table;
}

std::string summary_as_json(const ComparisonSummary& summary, std::span<const Field> compared) {
    JsonWriter json;
    json.begin_object();
    json.begin_object("entries");
    write(json, summary.entries);
    json.end_object();
    json.begin_array("fields");
    for (std::size_t i = 0; i < summary.fields.size(); ++i) {
        if (!has_any(summary.fields[i])) continue;
        json.begin_object();
        json.add_text("label", compared[i].label);
        json.add_text("group", compared[i].group);
        write(json, summary.fields[i]);
        json.end_object();
    }
    json.end_array();
    json.end_object();
    return json.take() + '\n';
}
