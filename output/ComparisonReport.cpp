#include "output/ComparisonReport.h"

#include <numeric>
#include <utility>

#include "output/comparison_summary.h"
#include "output/comparison_words.h"
#include "output/html_text.h"

namespace {

constexpr ReportWriter::Place in_cell = ReportWriter::Place::cell;

std::string block_of(const ComparisonLayout::Side& side) { return "data_" + side.block; }

}  // namespace

ComparisonReport::ComparisonReport(const ReportMedium& medium)
    : writer_(medium), marks_(writer_.target_of_cells()) {}

ComparisonReport::~ComparisonReport() = default;

LaidOutPart ComparisonReport::comparison(const Side& left, const Side& right, PairingReason reason,
                                         const EntryComparison& compared) {
    last_only_.reset();
    const ReportMedium& medium = writer_.medium();
    std::string rows, equivalent, equal;
    std::size_t differences = 0;
    for (const ComparedField& field : compared.fields) {
        if (field.verdict == Verdict::equal) {
            equal += writer_.row(field.label, writer_.mark_up(*field.left));
        } else if (is_difference(field.verdict)) {
            rows += sides(field);
            ++differences;
        } else {
            equivalent += sides(field);
        }
    }
    rows += equivalent;
    std::string report = writer_.title(writer_.plain(both(block_of(left), block_of(right))));
    const std::string source = both(without_folders(left.file), without_folders(right.file)) +
                               ", " + clause_of(reason) + ": " + count_of_differences(differences);
    report += writer_.element(medium.paragraph, writer_.plain(source));
    if (!rows.empty()) {
        const std::string head =
            writer_.table_row(medium.sides, writer_.words("Field", in_cell), medium.sides.head,
                              {writer_.words("Left", in_cell), writer_.words("Right", in_cell)});
        report += writer_.element(medium.sides.table, head + rows);
    }
    if (!equal.empty()) {
        report += writer_.element(medium.subtitle, writer_.words("Equal fields"));
        report += writer_.list(equal);
    }
    return {std::move(report)};
}

LaidOutPart ComparisonReport::only(const Side& entry, Verdict verdict) {
    std::string report;
    if (std::exchange(last_only_, verdict) != verdict) {
        report = writer_.title(writer_.words("Entries " + words_of(verdict)));
    }
    report += writer_.element(writer_.medium().paragraph,
                              writer_.plain(without_folders(entry.file) + ", " + block_of(entry)));
    return {std::move(report)};
}

std::string ComparisonReport::foot_with(const ComparisonSummary& counted,
                                        std::span<const Field> compared) {
    const bool has_several =
        std::accumulate(counted.entries.begin(), counted.entries.end(), 0UL) > 1;
    return has_several ? section(counted, compared, false) : std::string();
}

std::string ComparisonReport::summary(const ComparisonSummary& summary,
                                      std::span<const Field> compared) {
    return section(summary, compared, true);
}

/// How much differs; and how often fields are equal that never differ.
std::string ComparisonReport::section(const ComparisonSummary& summary,
                                      std::span<const Field> compared, bool lists_equal) const {
    const ReportMedium& medium = writer_.medium();
    std::vector<std::string> verdicts;
    verdicts.reserve(summary.entries.size());
    for (std::size_t i = 0; i < summary.entries.size(); ++i) {
        verdicts.push_back(writer_.words(words_of(static_cast<Verdict>(i)), in_cell));
    }
    const std::string head = writer_.table_row(medium.counts, writer_.words("How many", in_cell),
                                               medium.counts.head, verdicts);
    std::string differing, equal;
    std::size_t equals = 0;
    for (std::size_t i = 0; i < summary.fields.size(); ++i) {
        if (!has_any(summary.fields[i])) continue;
        const bool is_equal = is_equal_everywhere(summary.fields[i]);
        (is_equal ? equal : differing) += counts(compared[i].label, summary.fields[i]);
        equals += is_equal ? 1 : 0;
    }
    std::string report = writer_.title(writer_.words("Summary"));
    report +=
        writer_.element(medium.counts.table, head + counts("Entries", summary.entries) + differing);
    if (equals > 0) {
        report += writer_.element(medium.paragraph,
                                  writer_.words(count_of_equals(equals, " in all entries")));
        if (lists_equal) report += writer_.element(medium.counts.table, head + equal);
    }
    return report;
}

/// The two texts of a field, and why they differ.
std::string ComparisonReport::sides(const ComparedField& field) const {
    const ReportMedium::Table& table = writer_.medium().sides;
    std::string rows =
        writer_.table_row(table, writer_.words(field.label, in_cell), table.cell,
                          {side(field.left, field.findings, DifferenceMarks::left),
                           side(field.right, field.findings, DifferenceMarks::right)});
    const std::string reasons = reasons_of_difference(field);
    if (!reasons.empty()) rows += writer_.element(table.note, writer_.words(reasons, in_cell));
    return rows;
}

std::string ComparisonReport::side(const std::optional<TextItem>& item,
                                   const std::vector<Finding>& findings,
                                   DifferenceMarks::Side side) const {
    if (!item) return writer_.words(no_text, in_cell);
    return writer_.mark_up(marks_.marked(*item, findings, side), in_cell);
}

std::string ComparisonReport::counts(const std::string& label,
                                     const ComparisonSummary::Counts& counts) const {
    std::vector<std::string> numbers;
    numbers.reserve(counts.size());
    for (const unsigned long count : counts) numbers.push_back(std::to_string(count));
    const ReportMedium::Table& table = writer_.medium().counts;
    return writer_.table_row(table, writer_.words(label, in_cell), table.cell, numbers);
}
