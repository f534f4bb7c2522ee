#include "comparison/compare_numbers.h"

#include <algorithm>
#include <cmath>
#include <map>
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

Finding number_finding(Reason reason, const StringSlice& left, const StringSlice& right,
                       std::string_view label) {
    return {.reason = reason, .left = left, .right = right, .subject = std::string(label)};
}

/// Compares the values of a pair that is written differently.
void judge(Finding& finding, const WrittenNumber& left, const WrittenNumber& right,
           const ComparisonPolicy& policy) {
    finding.left_number = left.value;
    finding.right_number = right.value;
    const double difference = std::abs(left.value - right.value);
    const double combined = std::hypot(left.uncertainty, right.uncertainty);
    constexpr double rounding = 1e-9;  // of what the numbers are computed with, in these units
    const double half_unit = 0.5 * std::max(left.last_place, right.last_place);
    bool is_within = difference <= half_unit * (1 + rounding) && combined == 0;
    finding.limit = combined > 0 ? policy.sigmas : half_unit;
    if (combined > 0 && std::isfinite(difference / combined)) {
        finding.sigmas = difference / combined;
        is_within = *finding.sigmas <= policy.sigmas * (1 + rounding);
    }
    const double larger = std::max(std::abs(left.value), std::abs(right.value));
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

class NumbersComparison {
public:
    NumbersComparison(const ComparedText& left, const ComparedText& right,
                      const ComparisonPolicy& policy)
        : left_(left), right_(right), policy_(policy) {}

    std::vector<Finding> findings() {
        if (left_.numbers.empty() || right_.numbers.empty()) {
            return compare_plain_texts(left_.text, right_.text, policy_);
        }
        const std::map<std::string, Places> right_places = by_label(right_);
        for (const auto& [label, places] : by_label(left_)) {
            const auto same = right_places.find(label);
            if (same != right_places.end()) pair(left_, places, right_, same->second);
        }
        // Where all are in order, so is what stands between them.
        is_in_order_ = left_.numbers.size() == right_.numbers.size();
        for (std::size_t i = 0; i < left_.numbers.size() && is_in_order_; ++i) {
            is_in_order_ = left_.partners[i] == i;
        }
        compare_texts({0, left_.numbers[0].label.from()}, {0, right_.numbers[0].label.from()});
        for (std::size_t i = 0; i < left_.numbers.size(); ++i) compare_number(i);
        add_unpaired(left_, right_, false);
        add_unpaired(right_, left_, true);
        return std::move(findings_);
    }

private:
    void compare_number(std::size_t i) {
        const std::size_t j = left_.partners[i];
        if (j == none) return;
        const WrittenNumber &left = left_.numbers[i], &right = right_.numbers[j];
        compare_texts(left.label, right.label);
        if (left_.shown(left.place) != right_.shown(right.place)) {
            findings_.push_back(number_finding(Reason::number_within_limit, left.place, right.place,
                                               std::min(left_.label(i), right_.label(j))));
            judge(findings_.back(), left, right, policy_);
        }
        compare_texts(left_.behind(i), right_.behind(j));
    }

    void compare_texts(StringSlice left, StringSlice right) {
        if (!is_in_order_) {
            left = trimmed(left_, left);
            right = trimmed(right_, right);
        }
        if (left_.shown(left) == right_.shown(right)) return;
        compare_plain_texts(left_.text, left, right_.text, right, policy_, findings_);
    }

    /// Adds the numbers that the other side lacks, behind what stands there for the number before.
    void add_unpaired(const Side& side, const Side& other, bool is_right) {
        unsigned int behind = 0;
        for (std::size_t i = 0; i < side.numbers.size(); ++i) {
            const WrittenNumber& number = side.numbers[i];
            if (side.partners[i] != none) {
                behind = other.numbers[side.partners[i]].place.to();
                continue;
            }
            const StringSlice here(number.label.from(), number.place.to()), there(behind, behind);
            Finding finding = number_finding(Reason::number_missing, here, there, side.label(i));
            finding.left_number = number.value;
            findings_.push_back(is_right ? finding.mirrored() : finding);
        }
    }

    Side left_, right_;
    const ComparisonPolicy& policy_;
    bool is_in_order_ = true;
    std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> compare_numbers(const ComparedText& left, const ComparedText& right,
                                     const ComparisonPolicy& policy) {
    return NumbersComparison(left, right, policy).findings();
}
