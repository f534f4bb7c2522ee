#include "comparison/compare_formulae.h"

#include <algorithm>
#include <numeric>

#include "comparison/KeyedPairing.h"
#include "comparison/MoietyComparison.h"
#include "comparison/compare_plain_texts.h"
#include "markup/Utf8.h"
#include "text/Position.h"

namespace {

using Moiety = Formula::Moiety;
using Reason = Finding::Reason;

/// The keys by which the moieties of a formula are paired, the best first.
std::vector<KeyedPairing::Keys> keys_of(const Formula& formula) {
    std::vector<KeyedPairing::Keys> keys(6);
    for (const Moiety& moiety : formula.moieties) {
        const Composition composition(moiety);
        std::string key = composition.key();
        keys[2].push_back(key);
        key += ':';
        for (const Formula::Count& charge : moiety.charges) {
            key.append(std::to_string(charge.value)).append(" ");
        }
        keys[1].push_back(key);
        keys[0].push_back(key.append(std::to_string(moiety.multiplier.value)));
        keys[3].push_back(composition.key("H D"));  // which are miscounted most
        keys[4].push_back(composition.symbols());
        keys[5].push_back("any");
    }
    return keys;
}

/// A formula that is not made of moieties.
bool is_sum(const Formula& formula) {
    return formula.moieties.size() == 1 && formula.moieties[0].multiplier.range.empty();
}

std::vector<StringSlice> ranges_of(const Formula& formula) {
    std::vector<StringSlice> ranges;
    for (const Moiety& moiety : formula.moieties) ranges.push_back(moiety.range);
    return ranges;
}

/// The ranges with all the moieties that have another place.
MoietyComparison::Ranges moved_ranges(const Formula& left, const Formula& right,
                                      const KeyedPairing& pairing) {
    const auto range = [](const Formula& formula, const KeyedPairing::Partners& partners) {
        StringSlice moved{0, 0};
        for (std::size_t i = 0; i < partners.size(); ++i) {
            if (partners[i] != i) moved = moved.combine(formula.moieties[i].range);
        }
        return moved;
    };
    return {range(left, pairing.partners_of_left()), range(right, pairing.partners_of_right())};
}

bool is_in_order(const KeyedPairing::Partners& partners) {
    std::size_t last = 0;
    for (const auto& partner : partners) {
        if (!partner) continue;
        if (*partner < last) return false;
        last = *partner;
    }
    return true;
}

void compare_moieties(const Formula& left, const Formula& right, const KeyedPairing& pairing,
                      MoietyComparison& comparison) {
    const KeyedPairing::Partners& partners = pairing.partners_of_left();
    const auto right_places = places_among(ranges_of(right), partners);
    const auto left_places = places_among(ranges_of(left), pairing.partners_of_right());
    for (std::size_t i = 0; i < partners.size(); ++i) {
        if (partners[i]) {
            comparison.compare(left.moieties[i], right.moieties[*partners[i]]);
        } else {
            comparison.add_missing(left.moieties[i], right_places[i]);
        }
    }
    for (std::size_t i = 0; i < right.moieties.size(); ++i) {
        if (pairing.partners_of_right()[i]) continue;
        comparison.add_added(left_places[i], right.moieties[i]);
    }
    if (!is_in_order(partners)) comparison.add_reordered(moved_ranges(left, right, pairing));
}

/// What has been found, or that the order differs: both would stand in the same place.
std::vector<Finding> found_by(const MoietyComparison& comparison, const ComparisonPolicy& policy) {
    const std::vector<Finding>& findings = comparison.findings();
    if (!comparison.reordered()) return findings;
    const auto is_any = [&findings](const auto& condition) {
        return std::any_of(findings.begin(), findings.end(), condition);
    };
    const bool other_counts = is_any([&policy](const Finding& finding) {
        return finding.reason != Reason::coding && !policy.allows(finding.reason);
    });
    const bool is_other =
        is_any([](const Finding& finding) { return finding.reason != Reason::coding; });
    if (other_counts || (is_other && policy.allows(Reason::element_order))) return findings;
    return {{Reason::element_order, comparison.reordered()->first, comparison.reordered()->second}};
}

std::string without_blanks(std::string_view text) {
    std::string result;
    std::copy_if(text.begin(), text.end(), std::back_inserter(result),
                 [](char c) { return std::string_view(" \t\r\n").find(c) == std::string::npos; });
    return result;
}

/// Formulae that say the same in other texts: the words from the first that differs to the last.
Finding difference_of_equals(std::string_view left, std::string_view right) {
    const auto is_blank = [](char c) { return c == ' '; };
    const auto front = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    auto from = static_cast<std::size_t>(front.first - left.begin());
    while (from > 0 && !is_blank(left[from - 1])) --from;
    const std::string_view rest = left.substr(from), other_rest = right.substr(from);
    const auto back =
        std::mismatch(rest.rbegin(), rest.rend(), other_rest.rbegin(), other_rest.rend());
    auto tail = static_cast<std::size_t>(back.first - rest.rbegin());
    while (tail > 0 && !is_blank(rest[rest.size() - tail])) --tail;
    const bool has_other_blanks = without_blanks(left) == without_blanks(right);
    return {has_other_blanks ? Reason::blank : Reason::coding,
            {to_position(from), to_position(left.size() - tail)},
            {to_position(from), to_position(right.size() - tail)}};
}

}  // namespace

std::vector<Finding> compare_formulae(const ComparedText& left, const ComparedText& right,
                                      const ComparisonPolicy& policy) {
    const std::optional<Formula> left_formula = read_formula(left.shown());
    const std::optional<Formula> right_formula = read_formula(right.shown());
    if (!left_formula || !right_formula) return compare_plain_texts(left, right, policy);
    MoietyComparison comparison(left.shown(), right.shown());
    const auto left_keys = keys_of(*left_formula), right_keys = keys_of(*right_formula);
    KeyedPairing pairing(left_formula->moieties.size(), right_formula->moieties.size());
    for (std::size_t i = 0; i <= 2; ++i) pairing.pair(left_keys[i], right_keys[i]);
    const auto has_partner = [](const auto& partner) { return partner.has_value(); };
    const auto& partners = pairing.partners_of_left();
    const bool is_moiety_of_other = std::any_of(partners.begin(), partners.end(), has_partner);
    if (is_sum(*left_formula) != is_sum(*right_formula) && !is_moiety_of_other) {
        const Composition left_total(*left_formula), right_total(*right_formula);
        if (left_total == right_total) {
            return {{Reason::moiety_against_sum,
                     {0, length_of(left.shown())},
                     {0, length_of(right.shown())}}};
        }
        comparison.compare(left_total, right_total);
        return comparison.findings();
    }
    for (std::size_t i = 3; i < left_keys.size(); ++i) pairing.pair(left_keys[i], right_keys[i]);
    compare_moieties(*left_formula, *right_formula, pairing, comparison);
    std::vector<Finding> findings = found_by(comparison, policy);
    if (!findings.empty()) return findings;
    return {difference_of_equals(left.shown(), right.shown())};
}
