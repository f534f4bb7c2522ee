#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "checks/CheckFinding.h"
#include "checks/WantedChecks.h"

/// Gathers what is found in a file: those of each code that stand first in it, and how many there
/// are besides, so that memory has a limit and counts have none.
class FoundFaults {
public:
    /// How many findings of one code are told of a file. Of more the whole file is so.
    static constexpr std::size_t most_told = 1000;

    /// Gathers those that are wanted, and `most` of each code.
    explicit FoundFaults(WantedChecks wanted = {}, std::size_t most = most_told)
        : wanted_(std::move(wanted)), most_(most) {}

    /// The finding may be completed until the next is added.
    CheckFinding& add(CheckFinding finding);

    /// In the order of the file, each fault once, however many have found it. Behind the `most`
    /// findings of a code the next one stands for all that follow.
    CheckFindings take();

private:
    /// Those of one code.
    struct OfCode {
        CheckFindings first;     // up to twice as many as are told
        std::vector<bool> seen;  // by offset, as soon as some are left out
        unsigned long left_out = 0;
    };

    void keep_last();
    void shorten(OfCode& faults) const;

    WantedChecks wanted_;
    std::size_t most_;
    std::optional<CheckFinding> last_;  // not yet kept
    std::map<const CheckCode*, OfCode> faults_;
};

/// Likewise of findings that were taken: `most` of each code.
CheckFindings first_of_each_code(CheckFindings findings, std::size_t most);
