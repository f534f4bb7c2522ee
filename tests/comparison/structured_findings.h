#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "comparison/ComparisonKind.h"
#include "finders/InputTextStyleFinder.h"
#include "markup/Utf8.h"
#include "tests/Random.h"

inline const ComparisonKind& comparison_kind(const std::string& name) {
    const auto kinds = comparison_kinds();
    return *std::find_if(kinds.begin(), kinds.end(),
                         [&](const ComparisonKind& kind) { return kind.name == name; });
}

/// What the kind finds between two texts that are shown as they are.
inline std::vector<Finding> findings_of(const ComparisonKind& kind, const std::string& left,
                                        const std::string& right) {
    const TextItem items[] = {TextItem(make_handle<InputTextStyleFinder>(), left),
                              TextItem(make_handle<InputTextStyleFinder>(), right)};
    return kind.find(ComparedText(items[0]), ComparedText(items[1]), {kind.equivalent});
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

/// Ranges of a side lie on its characters and share none.
inline void expect_disjoint(std::vector<StringSlice> ranges, const std::string& text) {
    std::sort(ranges.begin(), ranges.end());
    unsigned int end = 0;
    for (const StringSlice& range : ranges) {
        EXPECT_LE(end, range.from()) << text;
        end = range.to();
        ASSERT_LE(end, text.size());
        EXPECT_EQ(start_of_character(text, range.from()), range.from()) << text;
        EXPECT_EQ(start_of_character(text, end), end) << text;
    }
}

/// What the kind finds between the two, sorted, with "; " between. Expects what holds for all.
inline std::string found(const std::string& kind_name, const std::string& left,
                         const std::string& right) {
    const ComparisonKind& kind = comparison_kind(kind_name);
    std::vector<std::string> texts, mirrored;
    std::vector<StringSlice> left_ranges, right_ranges;
    for (const Finding& finding : findings_of(kind, left, right)) {
        texts.push_back(as_text(finding));
        left_ranges.push_back(finding.left);
        right_ranges.push_back(finding.right);
    }
    for (const Finding& finding : findings_of(kind, right, left)) {
        mirrored.push_back(as_text(finding.mirrored()));
    }
    std::sort(texts.begin(), texts.end());
    EXPECT_FALSE(texts.empty()) << left << '|' << right;
    EXPECT_THAT(mirrored, testing::UnorderedElementsAreArray(texts)) << left << '|' << right;
    expect_disjoint(left_ranges, left);
    expect_disjoint(right_ranges, right);
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
