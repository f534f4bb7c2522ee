#include "comparison/TextComparison.h"

#include <algorithm>
#include <array>
#include <utility>

#include "comparison/compare_plain_texts.h"
#include "text/Position.h"

namespace {

using Findings = std::vector<Finding>;

/// Makes one of findings that are about parts of one code, such as that which is shown as "), ".
void join_in_codes(Findings& findings, const ComparisonPolicy& policy) {
    const auto is_of_text = [](const Finding& finding) {
        return reason_of(finding).kind == Finding::Kind::text;
    };
    Findings joined;
    joined.reserve(findings.size());
    for (Finding& finding : findings) {
        const bool shares = !joined.empty() && is_of_text(joined.back()) && is_of_text(finding) &&
                            (joined.back().left.overlaps(finding.left) ||
                             joined.back().right.overlaps(finding.right));
        if (!shares) {
            joined.push_back(std::move(finding));
            continue;
        }
        Finding& last = joined.back();
        last.left = last.left.combine(finding.left);
        last.right = last.right.combine(finding.right);
        last.is_coarse = last.is_coarse || finding.is_coarse;
        if (policy.allows(last.reason)) last.reason = finding.reason;
        const bool is_of_one_side =
            last.reason == Finding::Reason::insertion || last.reason == Finding::Reason::deletion;
        if (is_of_one_side && !last.left.empty() && !last.right.empty()) {
            last.reason = Finding::Reason::replacement;
        }
    }
    findings = std::move(joined);
}

/// What differs, in positions of the items.
Findings find(const ComparedText& left, const ComparedText& right, const ComparisonKind& kind,
              const ComparisonPolicy& policy) {
    Findings findings;
    if (left.shown() != right.shown() || left.scripts() != right.scripts()) {
        findings = kind.find(left, right, policy);
    }
    // What readers see alike, or what the kind looks for, has been written otherwise.
    if (findings.empty()) findings = compare_plain_texts(left, right, policy);
    for (Finding& finding : findings) {
        finding.left = left.in_item(finding.left);
        finding.right = right.in_item(finding.right);
    }
    join_in_codes(findings, policy);
    // What nobody sees has no place in the shown texts.
    if (findings.empty()) {
        const auto all = [](const ComparedText& text) {
            return StringSlice(0, length_of(text.item().characters()));
        };
        findings.push_back({Finding::Reason::coding, all(left), all(right)});
    }
    return findings;
}

}  // namespace

TextComparison::TextComparison(const ComparedText& left, const ComparedText& right,
                               const ComparisonKind& kind, const ComparisonPolicy& policy) {
    const std::string &left_text = left.item().characters(),
                      &right_text = right.item().characters();
    if (left_text == right_text) return;
    // In one order of the two, so that either way round gives the same.
    const bool exchanged = right_text < left_text;
    findings = exchanged ? find(right, left, kind, policy) : find(left, right, kind, policy);
    verdict = Verdict::equivalent;
    for (Finding& finding : findings) {
        if (exchanged) finding = finding.mirrored();
        finding.is_equivalent = policy.allows(finding.reason);
        if (!finding.is_equivalent) verdict = Verdict::different;
    }
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        const auto places = [](const Finding& finding) {
            return std::array{finding.left.from(), finding.left.to(), finding.right.from(),
                              finding.right.to()};
        };
        return places(a) < places(b);
    });
}
