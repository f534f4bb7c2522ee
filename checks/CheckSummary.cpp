#include "checks/CheckSummary.h"

#include <cstddef>

CheckSummary::CheckSummary() {
    for (const CheckCode& code : check_codes()) counts_.push_back({&code});
}

void CheckSummary::take(const CheckFindings& findings) {
    ++files_;
    std::vector<bool> seen(counts_.size());
    for (const CheckFinding& finding : findings) {
        const auto index = static_cast<std::size_t>(finding.code - check_codes().data());
        Counts& counts = counts_[index];
        counts.findings += finding.count;
        if (finding.repair) ++counts.repairs;
        if (!seen[index]) ++counts.files;
        seen[index] = true;
    }
}
