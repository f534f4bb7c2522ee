#include "tasks/ComparisonSummary.h"

void ComparisonSummary::add(const EntryTexts& left, const EntryTexts& right,
                            const EntryComparison& comparison) {
    ++entries[static_cast<std::size_t>(comparison.verdict())];
    fields.resize(comparison.verdicts.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (left.texts[i].text.empty() && right.texts[i].text.empty()) continue;
        ++fields[i][static_cast<std::size_t>(comparison.verdicts[i])];
    }
}
