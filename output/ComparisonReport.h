#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "output/ComparisonLayout.h"
#include "output/ReportWriter.h"
#include "tasks/DifferenceMarks.h"

/// A section for each pair of entries, with what differs side by side and first, one for entries by
/// themselves, and how much differs where there are several, in a medium.
class ComparisonReport : public ComparisonLayout {
public:
    explicit ComparisonReport(const ReportMedium& medium);
    ~ComparisonReport() override;

    LaidOutPart comparison(const Side& left, const Side& right, PairingReason reason,
                           const EntryComparison& compared) override;
    /// Those of a side stand below one title where they follow each other.
    LaidOutPart only(const Side& entry, Verdict verdict) override;
    std::string foot_with(const ComparisonSummary& counted,
                          std::span<const Field> compared) override;
    std::string summary(const ComparisonSummary& summary, std::span<const Field> compared) override;

private:
    std::string section(const ComparisonSummary& summary, std::span<const Field> compared,
                        bool lists_equal) const;
    std::string sides(const ComparedField& field) const;
    std::string side(const std::optional<TextItem>& item, const std::vector<Finding>& findings,
                     DifferenceMarks::Side side) const;
    std::string counts(const std::string& label, const ComparisonSummary::Counts& counts) const;

    ReportWriter writer_;
    DifferenceMarks marks_;
    std::optional<Verdict> last_only_;  // of the last part, if it was an entry by itself
};
