#pragma once

#include <span>
#include <string>

#include "output/EntryLayout.h"
#include "tasks/ComparisonSummary.h"
#include "tasks/EntryComparison.h"
#include "tasks/EntryPairing.h"

/// How comparisons of entries are written, and entries by themselves.
class ComparisonLayout : public EntryLayout {
public:
    ~ComparisonLayout() override;

    /// One side of a comparison.
    struct Side {
        std::string file, block;
    };
    /// Two entries and their fields, with what differs marked and the reasons.
    virtual std::string comparison(const Side& left, const Side& right, PairingReason reason,
                                   const EntryComparison& compared) = 0;
    /// An entry that one side alone has, which `verdict` says.
    virtual std::string only(const Side& entry, Verdict verdict) = 0;
    /// A document of its own with how much differs, of fields that were compared; the base writes
    /// plain text.
    virtual std::string summary(const ComparisonSummary& summary, std::span<const Field> compared);
};
