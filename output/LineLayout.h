#pragma once

#include <string>

#include "markup/RichTextTarget.h"
#include "output/ComparisonLayout.h"
#include "output/EntryLayout.h"
#include "tasks/DifferenceMarks.h"

/// A title for each entry and a row for each field, in the mark-up of a target. Titles and labels
/// are text, which is escaped where the target escapes.
class LineLayout : public EntryLayout, public ComparisonLayout {
public:
    explicit LineLayout(const RichTextTarget& target);
    ~LineLayout() override;

    LaidOutPart entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;
    /// Rows begin with "<" and ">" where the sides differ, with "~" where they do in nothing that
    /// counts and with "=" where they are the same; below those that differ stands why.
    LaidOutPart comparison(const Side& left, const Side& right, PairingReason reason,
                           const EntryComparison& compared) override;
    LaidOutPart only(const Side& entry, Verdict verdict) override;

private:
    std::string written(const std::string& text) const;
    void append_differences(std::string& lines, const ComparedField& field) const;
    std::string title(const std::string& text) const;
    void append_row(std::string& lines, const char* sign, const std::string& label,
                    const std::string& mark_up) const;

    const RichTextTarget& target_;
    THandle<RichTextGenerator> generator_;
    DifferenceMarks marks_;
};
