#include "comparison/compare_plain_texts.h"

#include "text/Position.h"

std::vector<Finding> compare_plain_texts(const ComparedText& left, const ComparedText& right,
                                         const ComparisonPolicy& policy) {
    std::vector<Finding> findings;
    compare_plain_texts(left, {0, length_of(left.shown())}, right, {0, length_of(right.shown())},
                        policy, findings);
    return findings;
}

void compare_plain_texts(const ComparedText& /*left*/, const StringSlice& left_range,
                         const ComparedText& /*right*/, const StringSlice& right_range,
                         const ComparisonPolicy& /*policy*/, std::vector<Finding>& findings) {
    findings.push_back({Finding::Reason::replacement, left_range, right_range});
}
