#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "comparison/TextComparison.h"
#include "finders/InputTextStyleFinder.h"
#include "fuzz/comparison_properties.h"
#include "tests/Random.h"

inline const ComparisonKind& comparison_kind(const std::string& name) {
    const auto kinds = comparison_kinds();
    return *std::find_if(kinds.begin(), kinds.end(),
                         [&](const ComparisonKind& kind) { return kind.name == name; });
}

/// "element H 40/39 [4,7)/[4,7)": reason, subject, numbers and ranges, as far as there are any.
inline std::string as_text(const Finding& finding) {
    const auto number = [](const std::optional<double>& value) {
        std::string text = value ? std::to_string(*value) : "";
        while (text.ends_with('0')) text.pop_back();
        if (text.ends_with('.')) text.pop_back();
        return value && text.empty() ? std::string("0") : text;
    };
    const auto range = [](const StringSlice& slice) {
        return '[' + std::to_string(slice.from()) + ',' + std::to_string(slice.to()) + ')';
    };
    std::string text = reason_of(finding).name;
    if (!finding.subject.empty()) text.append(" ").append(finding.subject);
    if (finding.left_number || finding.right_number) {
        text.append(" ").append(number(finding.left_number));
        text.append("/").append(number(finding.right_number));
    }
    return text.append(" ").append(range(finding.left)).append("/").append(range(finding.right));
}

/// What the kind finds between two texts that are shown as they are, sorted, with "; " between.
/// Expects what holds for all.
inline std::string found(const std::string& kind_name, const std::string& left,
                         const std::string& right) {
    const ComparisonKind& kind = comparison_kind(kind_name);
    const TextItem left_item(make_handle<InputTextStyleFinder>(), left);
    const TextItem right_item(make_handle<InputTextStyleFinder>(), right);
    EXPECT_EQ(complaint_of_comparison(left_item, right_item, kind), "") << left << '|' << right;
    const ComparedText left_side(left_item), right_side(right_item);
    const TextComparison comparison(left_side, right_side, kind, {kind.equivalent});
    std::vector<std::string> texts;
    for (const Finding& finding : comparison.findings) texts.push_back(as_text(finding));
    std::sort(texts.begin(), texts.end());
    std::string all;
    for (const std::string& text : texts) all.append(all.empty() ? "" : "; ").append(text);
    return all;
}

/// Compares texts with random changes of them, made of the pieces.
inline void expect_sound_findings(const std::string& kind, const std::vector<std::string>& texts,
                                  const std::vector<std::string>& pieces) {
    Random random(7);
    for (int round = 0; round < 2000; ++round) {
        const std::string& text = texts[random() % texts.size()];
        std::string changed = text;
        for (unsigned int edits = 1 + random() % 3; edits > 0; --edits) {
            const std::size_t from = random() % (changed.size() + 1);
            changed.replace(from, random() % 6, pieces[random() % pieces.size()]);
        }
        if (changed != text) found(kind, text, changed);
        if (testing::Test::HasFailure()) FAIL() << text << '|' << changed;
    }
}
