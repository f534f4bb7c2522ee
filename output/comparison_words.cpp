#include "output/comparison_words.h"

#include <algorithm>

#include "output/finding_sentences.h"

std::string reasons_of_difference(const ComparedField& field) {
    if (field.findings.empty()) return {};
    const ComparedText left(*field.left), right(*field.right);
    return FindingSentences(left, right).reasons(field.findings);
}

bool is_difference(Verdict verdict) {
    return verdict != Verdict::equal && verdict != Verdict::equivalent;
}

std::string count_of_differences(std::size_t count) {
    if (count == 0) return "no field differs";
    return count == 1 ? "1 field differs" : std::to_string(count) + " fields differ";
}

std::string count_of_equals(std::size_t count, const char* where) {
    return (count == 1 ? "1 field is equal" : std::to_string(count) + " fields are equal") + where;
}

bool is_equal_everywhere(const ComparisonSummary::Counts& counts) {
    return std::all_of(counts.begin() + 1, counts.end(),
                       [](unsigned long count) { return count == 0; });
}

std::string both(const std::string& left, const std::string& right) {
    return left == right ? left : left + " and " + right;
}
