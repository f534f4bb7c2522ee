#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "comparison/TextComparison.h"
#include "markup/Utf8.h"
#include "text/TextItem.h"

// What holds of the comparison of any two texts.

inline bool begins_before(const StringSlice& a, const StringSlice& b) {
    return a.from() != b.from() ? a.from() < b.from() : a.to() < b.to();
}

/// Whether ranges are in a text, share nothing and cut no character of it.
inline bool are_disjoint(const std::string& text, std::vector<StringSlice> ranges) {
    std::sort(ranges.begin(), ranges.end(), begins_before);
    unsigned int end = 0;
    const auto cuts = [&](unsigned int position) {
        return position > text.size() ||
               (position < text.size() && start_of_character(text, position) != position);
    };
    for (const StringSlice& range : ranges) {
        if (range.from() < end || cuts(range.from()) || cuts(range.to())) return false;
        end = std::max(end, range.to());
    }
    return true;
}

/// What does not hold of the comparison of the two, either way round; empty where all does.
inline std::string complaint_of_comparison(const TextItem& left_item, const TextItem& right_item,
                                           const ComparisonKind& kind) {
    const ComparisonPolicy policy{kind.equivalent};
    const ComparedText left(left_item), right(right_item);
    const TextComparison there(left, right, kind, policy), back(right, left, kind, policy);
    std::vector<StringSlice> left_ranges, right_ranges;
    std::vector<Finding> mirrored;
    bool is_equivalent = true;
    for (const Finding& finding : there.findings) {
        left_ranges.push_back(finding.left);
        right_ranges.push_back(finding.right);
        mirrored.push_back(finding.mirrored());
        is_equivalent = is_equivalent && finding.is_equivalent;
    }
    const bool is_equal = left_item.characters() == right_item.characters();
    if (there.verdict != back.verdict) return "the verdict is the same either way round";
    if (!std::is_sorted(left_ranges.begin(), left_ranges.end(), begins_before))
        return "ranges ascend";
    if (!are_disjoint(left_item.characters(), left_ranges)) return "left ranges are disjoint";
    if (!are_disjoint(right_item.characters(), right_ranges)) return "right ranges are disjoint";
    if (!std::is_permutation(mirrored.begin(), mirrored.end(), back.findings.begin(),
                             back.findings.end())) {
        return "swapping the sides mirrors every finding";
    }
    if (there.findings.empty() != is_equal) return "equal texts differ in nothing, others do";
    if ((there.verdict == Verdict::equal) != is_equal) return "equal texts are equal, others not";
    if ((there.verdict != Verdict::different) != is_equivalent) {
        return "the texts are equivalent when each finding is";
    }
    return "";
}
