#pragma once

#include <string>

#include "markup/RichTextTarget.h"
#include "output/ComparisonLayout.h"

/// A title for each entry and a row for each field, in the mark-up of a target. Titles and labels
/// are text, which is escaped where the target escapes.
class LineLayout : public ComparisonLayout {
public:
    explicit LineLayout(const RichTextTarget& target);
    ~LineLayout() override;

    std::string entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;
    /// Rows begin with "=" where both sides are the same, with "<" and ">" where they differ.
    std::string comparison(const Side& left, const Side& right,
                           const std::vector<ComparedField>& fields) override;

private:
    std::string written(const std::string& text) const;
    std::string mark_up(const std::optional<TextItem>& item) const;
    std::string title(const std::string& text) const;
    void append_row(std::string& lines, const char* sign, const char* label,
                    const std::string& mark_up) const;

    const RichTextTarget& target_;
    THandle<RichTextGenerator> generator_;
};
