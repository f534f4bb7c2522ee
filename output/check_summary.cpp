#include "output/check_summary.h"

#include <algorithm>
#include <cstring>

#include "output/CheckLayout.h"
#include "output/JsonWriter.h"

namespace {

constexpr std::size_t column_width = 10;

void append_cell(std::string& row, const std::string& text) {
    row.append(column_width - std::min(column_width - 1, text.size()), ' ').append(text);
}

void append_row(std::string& table, std::size_t width, std::string code, const char* level,
                const std::string (&cells)[3]) {
    code.resize(std::max(width, code.size()), ' ');
    table += code;
    append_cell(table, level);
    for (const std::string& cell : cells) append_cell(table, cell);
    table += '\n';
}

}  // namespace

std::string summary_as_text(const CheckSummary& summary) {
    std::size_t width = 0;
    unsigned long findings = 0, repairs = 0;
    for (const CheckSummary::Counts& counts : summary.counts()) {
        if (counts.findings > 0) width = std::max(width, std::strlen(counts.code->code));
        findings += counts.findings;
        repairs += counts.repairs;
    }
    std::string table;
    append_row(table, width, "code", "level", {"findings", "repairs", "files"});
    for (const CheckSummary::Counts& counts : summary.counts()) {
        if (counts.findings == 0) continue;
        append_row(table, width, counts.code->code, name_of(counts.code->level),
                   {std::to_string(counts.findings), std::to_string(counts.repairs),
                    std::to_string(counts.files)});
    }
    append_row(
        table, width, "all", "",
        {std::to_string(findings), std::to_string(repairs), std::to_string(summary.files())});
    return table;
}

std::string summary_as_json(const CheckSummary& summary) {
    const auto add_count = [](JsonWriter& json, const char* name, unsigned long count) {
        json.add_integer(name, static_cast<std::int64_t>(count));
    };
    JsonWriter json;
    json.begin_object();
    add_count(json, "files", summary.files());
    json.begin_array("codes");
    for (const CheckSummary::Counts& counts : summary.counts()) {
        if (counts.findings == 0) continue;
        json.begin_object();
        json.add_text("code", counts.code->code);
        json.add_text("level", name_of(counts.code->level));
        add_count(json, "findings", counts.findings);
        add_count(json, "repairs", counts.repairs);
        add_count(json, "files", counts.files);
        json.end_object();
    }
    json.end_array();
    json.end_object();
    return json.take() + '\n';
}
