#pragma once

#include <string>

#include "markup/Html5RichTextGenerator.h"
#include "output/ComparisonLayout.h"
#include "tasks/DifferenceMarks.h"

/// A page in HTML5. Names and texts are isolated: whatever direction a text is written in, what
/// stands beside it stays where it is.
class PageLayout : public ComparisonLayout {
public:
    PageLayout();
    ~PageLayout() override;

    std::string head(const std::string& title) override;
    std::string foot() override;
    std::string entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;
    /// In two columns; rows that differ are marked, and say why.
    std::string comparison(const Side& left, const Side& right, PairingReason reason,
                           const EntryComparison& compared) override;
    std::string only(const Side& entry, Verdict verdict) override;
    std::string summary(const ComparisonSummary& summary, std::span<const Field> compared) override;

private:
    std::string cell(const std::optional<TextItem>& item, const std::vector<Finding>& findings,
                     DifferenceMarks::Side side) const;

    DifferenceMarks marks_;
    mutable Html5RichTextGenerator generator_;
};
