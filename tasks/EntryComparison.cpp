#include "tasks/EntryComparison.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "entries/pass_on_bad_alloc.h"

namespace {

/// Compares a field of which either side has a text.
ComparedField compared(const Field& field, const EntryTexts& left_entry, const FieldText& left,
                       const EntryTexts& right_entry, const FieldText& right,
                       const ComparisonSettings& settings) {
    ComparedField result{field.label, field.group, {}, {}, Verdict::equal, {}};
    if (!left.text.empty()) result.left.emplace(left.source->make_finder(), left.text);
    if (!right.text.empty()) result.right.emplace(right.source->make_finder(), right.text);
    if (!result.right) result.verdict = Verdict::only_left;
    if (!result.left) result.verdict = Verdict::only_right;
    if (!result.left || !result.right) return result;
    const ComparedText left_side(*result.left, derived_uncertainties(left_entry, field, left));
    const ComparedText right_side(*result.right, derived_uncertainties(right_entry, field, right));
    TextComparison comparison(left_side, right_side, *field.comparison, settings.policy_of(field));
    result.verdict = comparison.verdict;
    result.findings = std::move(comparison.findings);
    return result;
}

}  // namespace

ComparisonPolicy ComparisonSettings::policy_of(const Field& field) const {
    return {(field.comparison->equivalent | ignored) & ~counted, sigmas, tolerance,
            relative_tolerance};
}

EntryComparison::EntryComparison(const EntryTexts& left, const EntryTexts& right,
                                 std::span<const Field> wanted, const ComparisonSettings& settings,
                                 bool all) {
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const FieldText &left_text = left.texts[i], &right_text = right.texts[i];
        verdicts.push_back(Verdict::equal);
        if (left_text.text == right_text.text && (!all || left_text.text.empty())) continue;
        try {
            ComparedField field = compared(wanted[i], left, left_text, right, right_text, settings);
            verdicts.back() = field.verdict;
            same =
                same && (field.verdict == Verdict::equal || field.verdict == Verdict::equivalent);
            if (all || field.verdict != Verdict::equal) fields.push_back(std::move(field));
        } catch (const std::exception& error) {
            pass_on_bad_alloc(error);
            Problem& problem = problems.emplace_back();
            problem.block = left.block;
            problem.other_block = right.block;
            problem.item = wanted[i].label;
            problem.what = error.what();
        }
    }
}

Verdict EntryComparison::verdict() const {
    if (!same) return Verdict::different;
    const bool is_equal = std::all_of(verdicts.begin(), verdicts.end(),
                                      [](Verdict field) { return field == Verdict::equal; });
    return is_equal ? Verdict::equal : Verdict::equivalent;
}
