#pragma once

#include <vector>

#include "comparison/Finding.h"
#include "markup/RichTextTarget.h"
#include "text/TextItem.h"

/// Marks in the two items of a field what differs, as a target can show it: bold and in colour, or
/// between brackets where it has neither, "[-left-]" and "{+right+}". What differs only in what
/// does not count has a colour of its own.
class DifferenceMarks {
public:
    enum Side { left, right };

    explicit DifferenceMarks(const RichTextTarget& target);

    /// The item with its side of the findings marked. A mark covers scripts, codes and characters
    /// whole; elsewhere marks and styles may cross. Never throws for ranges of the text. O(n + (m +
    /// k) log m) for n characters, m styles and k findings.
    TextItem marked(const TextItem& item, const std::vector<Finding>& findings, Side side) const;

private:
    bool has_styles_;  // of bold and colours at least one
};
