#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/ComparedSide.h"
#include "cli/TextOutput.h"
#include "output/ComparisonLayout.h"
#include "output/Output.h"
#include "output/TextPositions.h"
#include "tasks/ComparisonSummary.h"
#include "tasks/EntryComparison.h"
#include "tasks/EntryPairing.h"
#include "tasks/Losses.h"

/// What is compared, and how it is written.
struct CompareOptions {
    std::vector<Field> wanted{};
    ComparisonSettings settings{};
    const Output* to = nullptr;
    std::optional<TextPositions> positions{};
    bool all = false;           ///< What is equal or equivalent, too.
    bool only_summary = false;  ///< How much differs, and nothing else.
    bool shows_progress = true;
};

/// Compares the entries of two sides and writes what differs. What is wrong is reported.
class Comparison {
public:
    /// Keeps references to all.
    Comparison(const CompareOptions& options, ComparedSide& left, ComparedSide& right,
               TextOutput& output);

    /// Reads both sides in turn and compares entries as soon as both of a pair have been read. So
    /// pairs stand in the order of the left side where both sides have one order, otherwise where
    /// the later of the two stood; those that do not find each other by identifiers stand behind
    /// all others, and then what one side alone has. Only what has no other yet is held.
    void run();

    bool good() const { return good_; }  ///< Nothing was reported.
    bool same() const { return same_; }  ///< Nothing differs.
    /// Whether either side could be read at least in part.
    bool has_sides() const;

private:
    void compare_named();
    void compare_paired();
    void compare(const EntryPair& pair);
    void tell_of(const EntryTexts& entry, Verdict verdict);
    void write(LaidOutPart part, std::vector<Problem> notes);

    const CompareOptions& options_;
    ComparedSide &left_, &right_;
    TextOutput& output_;
    std::unique_ptr<ComparisonLayout> layout_;
    std::optional<Losses> losses_;  // of a target
    ComparisonSummary summary_;
    bool good_ = true, same_ = true;
};
