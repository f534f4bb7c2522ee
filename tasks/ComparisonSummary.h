#pragma once

#include <array>
#include <vector>

#include "tasks/EntryComparison.h"
#include "tasks/EntryTexts.h"

/// How many entries and fields of two sides differ.
struct ComparisonSummary {
    /// By the values of Verdict.
    using Counts = std::array<unsigned long, 5>;

    /// Counts two entries that were compared; fields that neither has are not counted.
    void add(const EntryTexts& left, const EntryTexts& right, const EntryComparison& comparison);
    /// Counts an entry that one side alone has.
    void add_only(Verdict side) { ++entries[static_cast<std::size_t>(side)]; }

    Counts entries{};            ///< Pairs, and entries of one side alone.
    std::vector<Counts> fields;  ///< In step with those that were compared; empty without pairs.
};
