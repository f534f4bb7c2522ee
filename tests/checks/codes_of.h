#pragma once

#include <string>

#include "checks/check_entries.h"

/// The codes of what is found in a file of these items, each with what was expected:
/// "year-late: a year near 2004\n".
inline std::string codes_of(const std::string& items) {
    const std::string cif = "data_a\n" + items + "\n";
    std::string result;
    for (const CheckFinding& finding : check_entries(EntryReader(cif))) {
        result.append(finding.code->code).append(": ");
        result.append(finding.repair ? finding.repair->after : finding.problem.expected);
        result += '\n';
    }
    return result;
}
