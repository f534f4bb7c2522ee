#include "comparison/compare_numbers.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "comparison/PairedNumbers.h"
#include "comparison/compare_plain_texts.h"
#include "text/Position.h"

namespace {

using Reason = Finding::Reason;

/// Compares the values of a pair that is written differently.
void judge(Finding& finding, const WrittenNumber& left, const WrittenNumber& right,
           const ComparisonPolicy& policy, bool are_counts) {
    finding.left_number = left.value;
    finding.right_number = right.value;
    const double difference = std::abs(left.value - right.value);
    const double combined = std::hypot(left.uncertainty, right.uncertainty);
    const double larger = std::max(std::abs(left.value), std::abs(right.value));
    const double rounding = 1e-14 * larger;  // of the difference
    constexpr double printed = 1e-5;         // six digits are
    const double half_unit =
        are_counts ? printed * larger : 0.5 * std::max(left.last_place, right.last_place);
    bool is_within = difference <= half_unit + rounding && combined == 0;
    if (combined > 0 || !are_counts) finding.limit = combined > 0 ? policy.sigmas : half_unit;
    if (combined > 0 && std::isfinite(difference / combined)) {
        finding.sigmas = difference / combined;
        is_within = difference <= policy.sigmas * combined + rounding;
    }
    const double tolerance = std::max(policy.tolerance, policy.relative_tolerance * larger);
    if (!is_within && difference <= tolerance + rounding) {
        is_within = true;
        finding.limit = tolerance;
        finding.sigmas.reset();
    }
    // Numbers too large for arithmetic are equal only as they are written.
    if (!std::isfinite(difference)) is_within = false;
    finding.reason = is_within ? Reason::number_within_limit : Reason::number_beyond_limit;
}

/// Without blanks and the signs of lists around it.
StringSlice trimmed(const PairedNumbers& side, const StringSlice& place) {
    const std::string_view text = side.shown(place);
    const std::size_t first = text.find_first_not_of(" ,;");
    if (first == std::string_view::npos) return {place.from(), place.from()};
    const std::size_t last = text.find_last_not_of(" ,;") + 1;
    return {place.from() + to_position(first), place.from() + to_position(last)};
}

/// The units of a text, each number as one of them, of which pairs have the same key; none where a
/// number is only a part of a unit.
std::optional<CutText> cut(const PairedNumbers& side, TextCutter& cutter, bool is_right) {
    CutText text = cutter.cut(side.text(), {0, length_of(side.text().shown())});
    TextUnits units;
    auto unit = text.units.begin();
    const auto copy_up_to = [&](unsigned int position) {
        while (unit != text.units.end() && unit->from < position) units.push_back(*unit++);
        return units.empty() || units.back().to <= position;
    };
    for (std::size_t i = 0; i < side.numbers().size(); ++i) {
        const StringSlice& place = side.numbers()[i].place;
        if (!copy_up_to(place.from())) return {};
        while (unit != text.units.end() && unit->to <= place.to()) ++unit;
        if (unit != text.units.end() && unit->from < place.to()) return {};
        // Pairs by the left number; of those without a partner each has a key of its own.
        const bool is_alone = side.partners()[i] == PairedNumbers::none;
        const std::size_t number = is_alone || !is_right ? i : side.partners()[i];
        const std::size_t key = 3 * number + (is_alone ? (is_right ? 2 : 1) : 0);
        units.push_back({place.from(), place.to(), opaque_key + static_cast<std::uint32_t>(key), 0,
                         false, TextUnit::Class::digits});
    }
    copy_up_to(text.range.to());
    text.units = std::move(units);
    return text;
}

class NumbersComparison {
public:
    NumbersComparison(const ComparedText& left, const ComparedText& right,
                      const ComparisonPolicy& policy, bool are_counts)
        : left_(left), right_(right), policy_(policy), are_counts_(are_counts) {}

    std::vector<Finding> findings() {
        PairedNumbers::pair(left_, right_);
        const bool are_pairs = left_.are_paired() && right_.are_paired();
        if (are_pairs && !std::is_sorted(left_.partners().begin(), left_.partners().end())) {
            compare_moved();
        } else {
            compare_in_order();
        }
        return std::move(findings_);
    }

private:
    /// Compares each number with what belongs to it.
    void compare_moved() {
        compare_texts({0, left_.numbers()[0].label.from()}, {0, right_.numbers()[0].label.from()});
        for (std::size_t i = 0; i < left_.numbers().size(); ++i) {
            const std::size_t j = left_.partners()[i];
            compare_texts(left_.numbers()[i].label, right_.numbers()[j].label);
            compare_values(i, j);
            compare_texts(left_.behind(i), right_.behind(j));
        }
    }
    void compare_texts(const StringSlice& left, const StringSlice& right) {
        const StringSlice left_part = trimmed(left_, left), right_part = trimmed(right_, right);
        if (left_.shown(left_part) == right_.shown(right_part)) return;
        compare_plain_texts(left_.text(), left_part, right_.text(), right_part, policy_, findings_);
    }

    /// Compares the texts from the front to the end, in which numbers stand for what they are.
    void compare_in_order() {
        TextCutter cutter;
        std::optional<CutText> left = cut(left_, cutter, false), right = cut(right_, cutter, true);
        if (!left || !right) {
            findings_ = compare_plain_texts(left_.text(), right_.text(), policy_);
            return;
        }
        compare_units(std::move(*left), std::move(*right), policy_, findings_);
        const std::vector<Finding> texts = findings_;
        for (Finding& finding : findings_) name_number(finding);
        auto text = texts.begin();
        for (std::size_t i = 0; i < left_.numbers().size(); ++i) {
            if (left_.partners()[i] == PairedNumbers::none) continue;
            const StringSlice& place = left_.numbers()[i].place;
            while (text != texts.end() && text->left.to() <= place.from()) ++text;
            const bool is_told = text != texts.end() && text->left.from() < place.to();
            if (!is_told) compare_values(i, left_.partners()[i]);
        }
    }

    void compare_values(std::size_t i, std::size_t j) {
        const WrittenNumber &left = left_.numbers()[i], &right = right_.numbers()[j];
        if (left_.shown(left.place) == right_.shown(right.place)) return;
        const std::string_view label = std::min(left_.label(i), right_.label(j));
        findings_.push_back({.reason = Reason::number_within_limit,
                             .left = left.place,
                             .right = right.place,
                             .subject = std::string(label)});
        judge(findings_.back(), left, right, policy_, are_counts_);
    }

    /// What only one side has is a number, where there is one in it.
    void name_number(Finding& finding) const {
        const std::size_t left = left_.first_in(finding.left),
                          right = right_.first_in(finding.right);
        if (left != PairedNumbers::none && right == PairedNumbers::none) {
            finding.reason = Reason::number_missing;
            finding.left_number = left_.numbers()[left].value;
            finding.subject = left_.label(left);
        } else if (right != PairedNumbers::none && left == PairedNumbers::none) {
            finding.reason = Reason::number_added;
            finding.right_number = right_.numbers()[right].value;
            finding.subject = right_.label(right);
        }
    }

    PairedNumbers left_, right_;
    const ComparisonPolicy& policy_;
    bool are_counts_;  // exact, and not rounded
    std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> compare_numbers(const ComparedText& left, const ComparedText& right,
                                     const ComparisonPolicy& policy) {
    return NumbersComparison(left, right, policy, false).findings();
}

std::vector<Finding> compare_counts(const ComparedText& left, const ComparedText& right,
                                    const ComparisonPolicy& policy) {
    return NumbersComparison(left, right, policy, true).findings();
}
