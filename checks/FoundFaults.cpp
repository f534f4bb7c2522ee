#include "checks/FoundFaults.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>

namespace {

std::size_t place_of(const CheckFinding& finding) { return finding.problem.offset.value_or(0); }

bool stands_before(const CheckFinding& a, const CheckFinding& b) {
    if (place_of(a) != place_of(b)) return place_of(a) < place_of(b);
    return std::string_view(a.code->code) < b.code->code;
}

bool is_same_place(const CheckFinding& a, const CheckFinding& b) {
    return place_of(a) == place_of(b);
}

/// "299,000".
std::string with_commas(unsigned long count) {
    const std::string digits = std::to_string(count);
    std::string text;
    for (std::size_t at = 0; at < digits.size(); ++at) {
        if (at > 0 && (digits.size() - at) % 3 == 0) text += ',';
        text += digits[at];
    }
    return text;
}

/// Says for how many the finding stands, and nothing of its own but the place.
void stand_for_all(CheckFinding& finding) {
    finding.repair.reset();
    Problem& problem = finding.problem;
    problem.block.reset();
    problem.item.clear();
    problem.found.clear();
    problem.expected.clear();
    problem.what = with_commas(finding.count).append(" more of these");
}

}  // namespace

CheckFinding& FoundFaults::add(CheckFinding finding) {
    keep_last();
    return last_.emplace(std::move(finding));
}

void FoundFaults::keep_last() {
    if (!last_) return;
    CheckFinding finding = std::move(*last_);
    last_.reset();
    if (!wanted_.contain(*finding.code, finding.problem.level)) return;
    OfCode& faults = faults_[finding.code];
    const std::size_t place = place_of(finding);
    if (!faults.seen.empty()) {
        if (faults.seen.size() <= place) faults.seen.resize(2 * place + 1);
        if (faults.seen[place]) return;
        faults.seen[place] = true;
    }
    faults.first.push_back(std::move(finding));
    if (faults.first.size() >= 2 * (most_ + 1)) shorten(faults);
}

/// Leaves out those behind the one that stands for all that follow.
void FoundFaults::shorten(OfCode& faults) const {
    CheckFindings& first = faults.first;
    std::stable_sort(first.begin(), first.end(), stands_before);
    first.erase(std::unique(first.begin(), first.end(), is_same_place), first.end());
    if (first.size() <= most_ + 1) return;
    if (faults.seen.empty()) {
        faults.seen.resize(place_of(first.back()) + 1);
        for (const CheckFinding& finding : first) faults.seen[place_of(finding)] = true;
    }
    faults.left_out += first.size() - (most_ + 1);
    first.erase(first.begin() + static_cast<std::ptrdiff_t>(most_ + 1), first.end());
}

CheckFindings FoundFaults::take() {
    keep_last();
    CheckFindings findings;
    for (auto& [code, faults] : faults_) {
        shorten(faults);
        if (faults.left_out > 0) faults.first.back().count += faults.left_out;
        std::move(faults.first.begin(), faults.first.end(), std::back_inserter(findings));
    }
    faults_.clear();
    std::stable_sort(findings.begin(), findings.end(), stands_before);
    return first_of_each_code(std::move(findings), most_);
}

CheckFindings first_of_each_code(CheckFindings findings, std::size_t most) {
    struct OfCode {
        std::size_t told = 0;
        std::size_t last = 0;  // among all that are told
    };
    std::map<const CheckCode*, OfCode> codes;
    CheckFindings told;
    told.reserve(findings.size());
    for (CheckFinding& finding : findings) {
        OfCode& code = codes[finding.code];
        if (code.told > most) {
            told[code.last].count += finding.count;
            continue;
        }
        ++code.told;
        code.last = told.size();
        told.push_back(std::move(finding));
    }
    for (const auto& [row, code] : codes) {
        if (code.told > most) stand_for_all(told[code.last]);
    }
    return told;
}
