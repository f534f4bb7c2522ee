#pragma once

#include <map>
#include <string>
#include <vector>

#include "output/ComparisonLayout.h"
#include "output/PageDocument.h"
#include "output/PageRichTextGenerator.h"
#include "tasks/DifferenceMarks.h"

/// A page of a comparison: how much differs, and each pair side by side with what differs first.
class ComparisonPage : public ComparisonLayout, public PageDocument {
public:
    ComparisonPage();
    ~ComparisonPage() override;

    LaidOutPart comparison(const Side& left, const Side& right, PairingReason reason,
                           const EntryComparison& compared) override;
    LaidOutPart only(const Side& entry, Verdict verdict) override;
    /// Links from the summary lead to what was laid out here and then added.
    std::string add(LaidOutPart part) override;
    std::string foot_with(const ComparisonSummary& summary,
                          std::span<const Field> compared) override;
    std::string summary(const ComparisonSummary& summary, std::span<const Field> compared) override;

protected:
    std::string top() const override { return top_; }

private:
    std::string row(const std::string& anchor, const ComparedField& field) const;
    std::string cell(const std::optional<TextItem>& item, const std::vector<Finding>& findings,
                     DifferenceMarks::Side side) const;

    DifferenceMarks marks_;
    mutable PageRichTextGenerator generator_;
    std::vector<std::string> differing_;        // fields of the part that is to be added
    std::map<std::string, std::string> first_;  // by field, where it differs first
    std::string top_;
};
