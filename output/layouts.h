#pragma once

#include <memory>
#include <optional>
#include <span>

#include "output/ComparisonLayout.h"
#include "output/EntryLayout.h"
#include "output/Output.h"
#include "output/TextPositions.h"

/// What show writes: the targets, and forms of its own, of whose files the name is the ending.
std::span<const Output> show_outputs();

/// The layout of entries that show these fields; in a file of its own the target that is for pages
/// makes one, and one that has a ReportMedium makes a report. JSON tells positions where they are
/// asked for.
std::unique_ptr<EntryLayout> make_entry_layout(const Output& output, bool own_file,
                                               std::span<const Field> wanted,
                                               std::optional<TextPositions> positions = {});

/// What compare writes: the targets, and JSON.
std::span<const Output> compare_outputs();

/// The layout of comparisons; the target that is for pages makes one, and one that has a
/// ReportMedium a report. JSON tells positions in bytes
/// of the texts where nothing else is asked for.
std::unique_ptr<ComparisonLayout> make_comparison_layout(
    const Output& output, std::optional<TextPositions> positions = {});
