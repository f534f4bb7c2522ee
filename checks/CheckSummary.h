#pragma once

#include <vector>

#include "checks/CheckFinding.h"

/// How often each fault has been found in some files.
class CheckSummary {
public:
    /// Of one fault. Repairs are those of the findings that are told, findings all.
    struct Counts {
        const CheckCode* code;
        unsigned long findings = 0, repairs = 0, files = 0;
    };

    /// Of no files.
    CheckSummary();

    /// Counts those of a file.
    void take(const CheckFindings& findings);

    /// How many there were, with findings and without.
    unsigned long files() const { return files_; }
    /// Of all codes, in the order of check_codes().
    const std::vector<Counts>& counts() const { return counts_; }

private:
    unsigned long files_ = 0;
    std::vector<Counts> counts_;
};
