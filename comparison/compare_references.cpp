#include "comparison/compare_references.h"

#include <algorithm>
#include <string>

#include "comparison/Reference.h"
#include "comparison/compare_plain_texts.h"
#include "comparison/folding.h"
#include "comparison/journal_names.h"
#include "text/internal/ascii.h"

namespace {

using Reason = Finding::Reason;

/// One side, and its parts by their order.
struct Side {
    const ComparedText& text;
    Reference reference;

    const StringSlice& range(std::size_t part) const { return reference.parts[part].range; }
    std::string_view part(std::size_t part) const {
        return text.shown().substr(range(part).from(), range(part).length());
    }
};

constexpr std::size_t journal = 0, first_page = 3, last_page = 4;

/// The last page as long as the first one: "1570" for "1567-70", "i138" for "i136-138".
std::string full_last_page(const Side& side) {
    const std::string_view first = side.part(first_page), last = side.part(last_page);
    if (last.empty()) return std::string(first);
    const bool are_digits = std::all_of(last.begin(), last.end(), is_ascii_digit);
    std::size_t letters = 0;
    while (letters < first.size() && !is_ascii_digit(first[letters])) ++letters;
    const std::string_view digits = first.substr(letters);
    const bool is_number = std::all_of(digits.begin(), digits.end(), is_ascii_digit);
    if (!are_digits || !is_number || last.size() > digits.size()) return std::string(last);
    // Shorter numbers that would not be greater are pages of their own.
    const std::string_view replaced = digits.substr(digits.size() - last.size());
    const std::size_t kept = first.size() - last.size();
    return std::string(first.substr(0, replaced <= last ? kept : letters)).append(last);
}

/// Appends what differs in one part, if anything does.
void compare_part(std::size_t part, const Side& left, const Side& right,
                  const ComparisonPolicy& policy, std::vector<Finding>& findings) {
    const std::string_view left_part = left.part(part), right_part = right.part(part);
    if (left_part == right_part) return;
    const auto add = [&](Reason reason) {
        findings.push_back({reason, left.range(part), right.range(part)});
    };
    if (part == journal && !left_part.empty() && !right_part.empty() &&
        may_be_one_journal(left_part, right_part)) {
        add(Reason::journal_form);
    } else if (part == last_page && full_last_page(left) == full_last_page(right)) {
        add(Reason::coding);
    } else if (part != journal && folded(left_part, {}) == folded(right_part, {})) {
        compare_plain_texts(left.text, left.range(part), right.text, right.range(part), policy,
                            findings);
    } else {
        add(left.reference.parts[part].reason);
    }
}

/// The dash between the pages, or an empty range.
StringSlice dash_of(const Side& side) {
    return {side.range(first_page).to(), side.range(last_page).from()};
}

}  // namespace

std::vector<Finding> compare_references(const ComparedText& left, const ComparedText& right,
                                        const ComparisonPolicy& policy) {
    const std::optional<Reference> left_reference = read_reference(left.shown());
    const std::optional<Reference> right_reference = read_reference(right.shown());
    if (!left_reference || !right_reference) return compare_plain_texts(left, right, policy);
    const Side left_side{left, *left_reference}, right_side{right, *right_reference};
    std::vector<Finding> findings;
    for (std::size_t part = 0; part < left_reference->parts.size(); ++part) {
        compare_part(part, left_side, right_side, policy, findings);
        const StringSlice left_dash = dash_of(left_side), right_dash = dash_of(right_side);
        if (part != first_page || left_dash.empty() || right_dash.empty()) continue;
        compare_plain_texts(left, left_dash, right, right_dash, policy, findings);
    }
    // Or what stands between the parts differs.
    return findings.empty() ? compare_plain_texts(left, right, policy) : findings;
}
