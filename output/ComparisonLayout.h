#pragma once

#include <span>
#include <string>

#include "output/DocumentLayout.h"
#include "tasks/ComparisonSummary.h"
#include "tasks/EntryComparison.h"
#include "tasks/EntryPairing.h"

/// How comparisons of entries are written, and entries by themselves.
class ComparisonLayout : public virtual DocumentLayout {
public:
    ~ComparisonLayout() override;

    /// One side of a comparison.
    struct Side {
        std::string file, block;
    };
    /// Lays out two entries and their fields, with what differs marked and the reasons.
    virtual LaidOutPart comparison(const Side& left, const Side& right, PairingReason reason,
                                   const EntryComparison& compared) = 0;
    /// Lays out an entry that one side alone has, which `verdict` says.
    virtual LaidOutPart only(const Side& entry, Verdict verdict) = 0;
    /// What foot() returns, where it is known how much differs, of fields that were compared; the
    /// base does not tell of it.
    virtual std::string foot_with(const ComparisonSummary& summary,
                                  std::span<const Field> compared);
    /// A document of its own with how much differs, of fields that were compared; the base writes
    /// plain text.
    virtual std::string summary(const ComparisonSummary& summary, std::span<const Field> compared);
};
