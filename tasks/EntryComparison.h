#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "comparison/ComparisonPolicy.h"
#include "comparison/TextComparison.h"
#include "entries/Problem.h"
#include "tasks/EntryTexts.h"
#include "tasks/Field.h"
#include "text/TextItem.h"

/// One field of two entries: its texts, and what differs.
struct ComparedField {
    const char* label;
    const char* group;
    std::optional<TextItem> left, right;  ///< None where that side has no text.
    Verdict verdict;
    std::vector<Finding> findings;
};

/// How users change what counts: the limits of numbers, and reasons that count in no field, or in
/// each.
struct ComparisonSettings {
    double sigmas = 3;
    double tolerance = 0;
    double relative_tolerance = 0;
    FindingReasons ignored, counted;

    /// The policy for a field.
    ComparisonPolicy policy_of(const Field& field) const;
};

/// The fields of two entries that have a text on either side, and the problems of those that cannot
/// be compared.
struct EntryComparison {
    /// `wanted` is what both sides were made for. Fields that are equal are left out unless `all`.
    EntryComparison(const EntryTexts& left, const EntryTexts& right, std::span<const Field> wanted,
                    const ComparisonSettings& settings, bool all);

    /// Different where a field differs, else equivalent where one is, else equal.
    Verdict verdict() const;

    std::vector<ComparedField> fields;
    std::vector<Verdict> verdicts;  ///< Of each of `wanted`; equal where both have no text.
    std::vector<Problem> problems;
    bool same = true;  ///< No field differs, and none is on one side alone.
};
