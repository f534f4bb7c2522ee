#include "output/ComparisonLayout.h"

#include "output/comparison_summary.h"

ComparisonLayout::~ComparisonLayout() = default;

std::string ComparisonLayout::foot_with(const ComparisonSummary& /*summary*/,
                                        std::span<const Field> /*compared*/) {
    return foot();
}

std::string ComparisonLayout::summary(const ComparisonSummary& summary,
                                      std::span<const Field> compared) {
    return summary_as_text(summary, compared);
}
