#include "output/layouts.h"

#include <string>
#include <vector>

#include "output/ComparisonPage.h"
#include "output/ComparisonReport.h"
#include "output/EntryPage.h"
#include "output/EntryReport.h"
#include "output/JsonLayout.h"
#include "output/LineLayout.h"
#include "output/TableLayout.h"
#include "tasks/row_named.h"

namespace {

/// A form of entries that is no target's.
struct OwnForm {
    const char* name;
    const char* help;
    std::unique_ptr<EntryLayout> (*make)(std::span<const Field> fields,
                                         std::optional<TextPositions> positions);
};

template <TableLayout::Form form>
std::unique_ptr<EntryLayout> make_table(std::span<const Field> fields,
                                        std::optional<TextPositions> /*positions*/) {
    std::vector<std::string> labels;
    for (const Field& field : fields) labels.emplace_back(field.label);
    return std::make_unique<TableLayout>(form, labels);
}

constexpr OwnForm own_forms[] = {
    {"json", "labels, groups, texts, mark-up and runs of uniform style of each entry (.json)",
     [](std::span<const Field> /*fields*/, std::optional<TextPositions> positions)
         -> std::unique_ptr<EntryLayout> { return std::make_unique<JsonLayout>(positions); }},
    {"csv",
     "a row an entry and a column a field, for spreadsheets; what they would take for a formula "
     "begins with ' (.csv)",
     make_table<TableLayout::Form::csv>},
    {"tsv",
     "the same between tabs, for scripts; \\t, \\n, \\r and \\\\ stand for a tab, for line ends "
     "and for a backslash (.tsv)",
     make_table<TableLayout::Form::tsv>},
};

}  // namespace

std::span<const Output> show_outputs() {
    static const std::vector<Output> outputs = [] {
        std::vector<Output> own;
        for (const OwnForm& form : own_forms) own.push_back({form.name, form.help, nullptr});
        return outputs_with(own);
    }();
    return outputs;
}

std::span<const Output> compare_outputs() {
    static const std::vector<Output> outputs = outputs_with(
        {{"json",
          "both sides of each field as show has them, verdicts, and what differs: kind, reason, "
          "places, numbers, a clause in English (.json)",
          nullptr}});
    return outputs;
}

std::unique_ptr<EntryLayout> make_entry_layout(const Output& output, bool own_file,
                                               std::span<const Field> wanted,
                                               std::optional<TextPositions> positions) {
    if (!output.target) {
        return row_named(std::span<const OwnForm>(own_forms), output.name)->make(wanted, positions);
    }
    if (own_file && output.target->use == RichTextTarget::Use::page) {
        return std::make_unique<EntryPage>();
    }
    if (const ReportMedium* const medium = report_medium_of(*output.target)) {
        return std::make_unique<EntryReport>(*medium);
    }
    return std::make_unique<LineLayout>(*output.target);
}

std::unique_ptr<ComparisonLayout> make_comparison_layout(const Output& output,
                                                         std::optional<TextPositions> positions) {
    if (!output.target) return std::make_unique<JsonLayout>(positions);
    if (output.target->use == RichTextTarget::Use::page) return std::make_unique<ComparisonPage>();
    if (const ReportMedium* const medium = report_medium_of(*output.target)) {
        return std::make_unique<ComparisonReport>(*medium);
    }
    return std::make_unique<LineLayout>(*output.target);
}
