#include "comparison/TextComparison.h"

#include <algorithm>

TextComparison::TextComparison(const ComparedText& left, const ComparedText& right,
                               const ComparisonKind& kind, const ComparisonPolicy& policy)
    : verdict(Verdict::equal) {
    if (left.item().characters() == right.item().characters()) return;
    findings = kind.find(left, right, policy);
    for (Finding& finding : findings) {
        finding.left = left.in_item(finding.left);
        finding.right = right.in_item(finding.right);
        finding.is_equivalent = policy.allows(finding.reason);
    }
    const bool all = std::all_of(findings.begin(), findings.end(),
                                 [](const Finding& finding) { return finding.is_equivalent; });
    verdict = all ? Verdict::equivalent : Verdict::different;
}
