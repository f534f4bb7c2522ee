#pragma once

#include <vector>

#include "checks/CheckCode.h"

/// Which faults are looked for.
class WantedChecks {
public:
    /// All.
    WantedChecks() = default;
    /// Those of that level or graver: of `only`, unless it is empty, but not `ignored`. The codes
    /// are those of check_codes().
    WantedChecks(Problem::Level level, std::vector<const CheckCode*> only,
                 std::vector<const CheckCode*> ignored);

    /// `level` is that of the finding.
    bool contain(const CheckCode& code, Problem::Level level) const;
    /// Whether any of them is, if its findings are grave enough.
    bool contain_any(std::span<const CheckCode> codes) const;

private:
    Problem::Level level_ = Problem::Level::note;
    std::vector<const CheckCode*> only_, ignored_;
};
