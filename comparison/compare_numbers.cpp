#include "comparison/compare_numbers.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "comparison/EditScript.h"
#include "comparison/WrittenNumber.h"
#include "comparison/compare_plain_texts.h"
#include "comparison/folding.h"
#include "text/Position.h"

namespace {

using Reason = Finding::Reason;
using Places = std::vector<std::size_t>;  // of numbers in their list

constexpr std::size_t none = static_cast<std::size_t>(-1);

/// One side: its numbers, and the number of the other side that each is compared with.
struct Side {
    explicit Side(const ComparedText& compared)
        : text(compared), numbers(numbers_of(compared.shown())), partners(numbers.size(), none) {
        const std::vector<double>& known = compared.uncertainties();
        for (std::size_t i = 0; i < std::min(known.size(), numbers.size()); ++i) {
            if (numbers[i].uncertainty == 0) numbers[i].uncertainty = known[i];
        }
    }

    std::string_view shown(const StringSlice& place) const {
        return text.shown().substr(place.from(), place.length());
    }
    /// The word before a number, without what stands between.
    std::string_view label(std::size_t number) const {
        const std::string_view label = shown(numbers[number].label);
        return label.substr(0, label.find_last_not_of(" :=") + 1);
    }
    /// From behind a number to the label of the next.
    StringSlice behind(std::size_t number) const {
        const bool is_last = number + 1 == numbers.size();
        const unsigned int from = numbers[number].place.to();
        return {from, is_last ? length_of(text.shown()) : numbers[number + 1].label.from()};
    }

    bool are_paired() const {
        return std::find(partners.begin(), partners.end(), none) == partners.end();
    }
    /// The first number in a range, or none.
    std::size_t first_in(const StringSlice& range) const {
        const auto first = std::partition_point(
            numbers.begin(), numbers.end(),
            [&](const WrittenNumber& number) { return number.place.from() < range.from(); });
        const bool is_in = first != numbers.end() && first->place.to() <= range.to();
        return is_in ? static_cast<std::size_t>(first - numbers.begin()) : none;
    }

    const ComparedText& text;
    std::vector<WrittenNumber> numbers;
    Places partners;
};

std::map<std::string, Places> by_label(const Side& side) {
    std::map<std::string, Places> places;
    for (std::size_t i = 0; i < side.numbers.size(); ++i) {
        places[folded(side.label(i), {})].push_back(i);
    }
    return places;
}

/// Pairs numbers of one label in their order; where one side has more of them, those first that
/// are written alike.
void pair(Side& left, const Places& left_places, Side& right, const Places& right_places) {
    std::vector<EditScript::Block> blocks;
    if (left_places.size() != right_places.size()) {
        constexpr std::size_t most_steps = 1'000'000;
        std::map<std::string_view, std::uint32_t> known;
        const auto keys_of = [&](const Side& side, const Places& places) {
            std::vector<std::uint32_t> keys;
            for (const std::size_t place : places) {
                const auto next = static_cast<std::uint32_t>(known.size());
                keys.push_back(
                    known.emplace(side.shown(side.numbers[place].place), next).first->second);
            }
            return keys;
        };
        blocks =
            EditScript(keys_of(left, left_places), keys_of(right, right_places), most_steps).blocks;
    }
    blocks.push_back(
        {left_places.size(), left_places.size(), right_places.size(), right_places.size()});
    std::size_t i = 0, j = 0;
    const auto pair_up_to = [&](std::size_t left_end, std::size_t right_end) {
        for (; i < left_end && j < right_end; ++i, ++j) {
            left.partners[left_places[i]] = right_places[j];
            right.partners[right_places[j]] = left_places[i];
        }
        i = left_end;
        j = right_end;
    };
    for (const EditScript::Block& block : blocks) {
        pair_up_to(block.left_from, block.right_from);
        pair_up_to(block.left_to, block.right_to);
    }
}

/// Compares the values of a pair that is written differently.
void judge(Finding& finding, const WrittenNumber& left, const WrittenNumber& right,
           const ComparisonPolicy& policy, bool are_counts) {
    finding.left_number = left.value;
    finding.right_number = right.value;
    const double difference = std::abs(left.value - right.value);
    const double combined = std::hypot(left.uncertainty, right.uncertainty);
    constexpr double rounding = 1e-9;  // of what the numbers are computed with, in these units
    const double larger = std::max(std::abs(left.value), std::abs(right.value));
    constexpr double printed = 1e-5;  // six digits are
    const double half_unit =
        are_counts ? printed * larger : 0.5 * std::max(left.last_place, right.last_place);
    bool is_within = difference <= half_unit * (1 + rounding) && combined == 0;
    if (combined > 0 || !are_counts) finding.limit = combined > 0 ? policy.sigmas : half_unit;
    if (combined > 0 && std::isfinite(difference / combined)) {
        finding.sigmas = difference / combined;
        is_within = *finding.sigmas <= policy.sigmas * (1 + rounding);
    }
    const double tolerance = std::max(policy.tolerance, policy.relative_tolerance * larger);
    if (!is_within && difference <= tolerance * (1 + rounding)) {
        is_within = true;
        finding.limit = tolerance;
        finding.sigmas.reset();
    }
    // Numbers too large for arithmetic are equal only as they are written.
    if (!std::isfinite(difference)) is_within = false;
    finding.reason = is_within ? Reason::number_within_limit : Reason::number_beyond_limit;
}

/// Without blanks and the signs of lists around it.
StringSlice trimmed(const Side& side, const StringSlice& place) {
    const std::string_view text = side.shown(place);
    const std::size_t first = text.find_first_not_of(" ,;");
    if (first == std::string_view::npos) return {place.from(), place.from()};
    const std::size_t last = text.find_last_not_of(" ,;") + 1;
    return {place.from() + to_position(first), place.from() + to_position(last)};
}

/// The units of a text, each number as one of them, of which pairs have the same key; none where a
/// number is only a part of a unit.
std::optional<CutText> cut(const Side& side, TextCutter& cutter, bool is_right) {
    CutText text = cutter.cut(side.text, {0, length_of(side.text.shown())});
    TextUnits units;
    auto unit = text.units.begin();
    const auto copy_up_to = [&](unsigned int position) {
        while (unit != text.units.end() && unit->from < position) units.push_back(*unit++);
        return units.empty() || units.back().to <= position;
    };
    for (std::size_t i = 0; i < side.numbers.size(); ++i) {
        const StringSlice& place = side.numbers[i].place;
        if (!copy_up_to(place.from())) return {};
        while (unit != text.units.end() && unit->to <= place.to()) ++unit;
        if (unit != text.units.end() && unit->from < place.to()) return {};
        // Pairs by the left number; of those without a partner each has a key of its own.
        const bool is_alone = side.partners[i] == none;
        const std::size_t number = is_alone || !is_right ? i : side.partners[i];
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
        if (!left_.numbers.empty() && !right_.numbers.empty()) {
            const std::map<std::string, Places> right_places = by_label(right_);
            for (const auto& [label, places] : by_label(left_)) {
                const auto same = right_places.find(label);
                if (same != right_places.end()) pair(left_, places, right_, same->second);
            }
        }
        const bool are_pairs = left_.are_paired() && right_.are_paired();
        if (are_pairs && !std::is_sorted(left_.partners.begin(), left_.partners.end())) {
            compare_moved();
        } else {
            compare_in_order();
        }
        return std::move(findings_);
    }

private:
    /// Compares each number with what belongs to it.
    void compare_moved() {
        compare_texts({0, left_.numbers[0].label.from()}, {0, right_.numbers[0].label.from()});
        for (std::size_t i = 0; i < left_.numbers.size(); ++i) {
            const std::size_t j = left_.partners[i];
            compare_texts(left_.numbers[i].label, right_.numbers[j].label);
            compare_values(i, j);
            compare_texts(left_.behind(i), right_.behind(j));
        }
    }
    void compare_texts(const StringSlice& left, const StringSlice& right) {
        const StringSlice left_part = trimmed(left_, left), right_part = trimmed(right_, right);
        if (left_.shown(left_part) == right_.shown(right_part)) return;
        compare_plain_texts(left_.text, left_part, right_.text, right_part, policy_, findings_);
    }

    /// Compares the texts from the front to the end, in which numbers stand for what they are.
    void compare_in_order() {
        TextCutter cutter;
        std::optional<CutText> left = cut(left_, cutter, false), right = cut(right_, cutter, true);
        if (!left || !right) {
            findings_ = compare_plain_texts(left_.text, right_.text, policy_);
            return;
        }
        compare_units(std::move(*left), std::move(*right), policy_, findings_);
        const std::vector<Finding> texts = findings_;
        for (Finding& finding : findings_) name_number(finding);
        auto text = texts.begin();
        for (std::size_t i = 0; i < left_.numbers.size(); ++i) {
            if (left_.partners[i] == none) continue;
            const StringSlice& place = left_.numbers[i].place;
            while (text != texts.end() && text->left.to() <= place.from()) ++text;
            const bool is_told = text != texts.end() && text->left.from() < place.to();
            if (!is_told) compare_values(i, left_.partners[i]);
        }
    }

    void compare_values(std::size_t i, std::size_t j) {
        const WrittenNumber &left = left_.numbers[i], &right = right_.numbers[j];
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
        if (left != none && right == none) {
            finding.reason = Reason::number_missing;
            finding.left_number = left_.numbers[left].value;
            finding.subject = left_.label(left);
        } else if (right != none && left == none) {
            finding.reason = Reason::number_added;
            finding.right_number = right_.numbers[right].value;
            finding.subject = right_.label(right);
        }
    }

    Side left_, right_;
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
