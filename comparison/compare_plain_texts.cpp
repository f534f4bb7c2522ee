#include "comparison/compare_plain_texts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string>

#include "comparison/TextUnits.h"
#include "comparison/folding.h"
#include "comparison/unit_blocks.h"
#include "text/Position.h"

namespace {

using Reason = Finding::Reason;
using Block = EditScript::Block;

/// What folding takes for the same, and why the texts differ where it is needed.
struct Row {
    bool Folding::*flag;
    Reason reason;
};
constexpr Row rows[] = {
    {&Folding::greek, Reason::greek},    {&Folding::forms, Reason::script},
    {&Folding::accents, Reason::accent}, {&Folding::letter_case, Reason::letter_case},
    {&Folding::dashes, Reason::dash},    {&Folding::apostrophes, Reason::apostrophe},
};

constexpr Folding as_written{false, false, false, false, false, false, false, false};

/// Where the first word of two letters or more begins: case tells "N-butyl" from "n-butyl", and not
/// "N-Butyl" from "N-butyl".
std::size_t first_letter(const TextUnits& units) {
    const auto is_pair = [](const TextUnit& unit, const TextUnit& next) {
        return unit.kind == TextUnit::Class::letter && next.kind == TextUnit::Class::letter;
    };
    return static_cast<std::size_t>(std::adjacent_find(units.begin(), units.end(), is_pair) -
                                    units.begin());
}

/// Pairs the units of two texts, and compares each with its partner.
class PairedTexts {
public:
    PairedTexts(CutText left, CutText right, const ComparisonPolicy& policy,
                std::vector<Finding>& findings)
        : left_(std::move(left)),
          right_(std::move(right)),
          left_first_letter_(first_letter(left_.units)),
          right_first_letter_(first_letter(right_.units)),
          policy_(policy),
          findings_(findings),
          first_(findings.size()) {}

    void compare() {
        std::size_t i = 0, j = 0;
        for (const Block& block : unit_blocks(left_.units, right_.units)) {
            compare_pairs(i, block.left_from, j);
            add_block(block);
            i = block.left_to;
            j = block.right_to;
        }
        compare_pairs(i, left_.units.size(), j);
    }

private:
    /// The pairs from [i, end) and j on.
    void compare_pairs(std::size_t i, std::size_t end, std::size_t j) {
        for (; i < end; ++i, ++j) {
            if (const auto reason = reason_of_pair(i, j)) {
                add(*reason, left_.units[i].place(), right_.units[j].place(), false);
            }
        }
    }
    std::optional<Reason> reason_of_pair(std::size_t i, std::size_t j) const;
    void add_block(const Block& block);
    Reason reason_of_block(const Block& block) const;
    /// Adds a finding, to the last one where both say the same of characters in a row.
    void add(Reason reason, const StringSlice& left, const StringSlice& right, bool is_coarse);

    CutText left_, right_;
    std::size_t left_first_letter_, right_first_letter_;
    const ComparisonPolicy& policy_;
    std::vector<Finding>& findings_;
    std::size_t first_;  // of our findings
};

/// Of reasons that hold together one that counts.
std::optional<Reason> PairedTexts::reason_of_pair(std::size_t i, std::size_t j) const {
    const TextUnit &left = left_.units[i], &right = right_.units[j];
    if (left.key >= opaque_key) return {};
    const std::string_view left_text = left_.shown(left), right_text = right_.shown(right);
    std::optional<Reason> found;
    const auto note = [&](Reason reason) {
        const bool is_first = i == left_first_letter_ && j == right_first_letter_;
        if (reason == Reason::letter_case && is_first) reason = Reason::first_letter_case;
        if (!found || (policy_.allows(*found) && !policy_.allows(reason))) found = reason;
    };
    const bool is_same_script = left.valign == right.valign && left.is_barred == right.is_barred;
    if (!is_same_script) note(Reason::script);
    if (left_text == right_text) {
        if (found || left_.text.written(left.place()) == right_.text.written(right.place()))
            return found;
        const bool is_greek = folded(left_text, {}) != folded(left_text, {.greek = false});
        return is_greek ? Reason::greek : Reason::coding;
    }
    if (left.kind == TextUnit::Class::blank) note(Reason::blank);
    for (const Row& row : rows) {
        Folding others;
        others.*row.flag = false;
        if (folded(left_text, others) == folded(right_text, others)) continue;
        note(row.reason == Reason::script && is_same_script ? Reason::coding : row.reason);
    }
    return found ? found : Reason::coding;
}

void PairedTexts::add_block(const Block& block) {
    add(reason_of_block(block), left_.place(block.left_from, block.left_to),
        right_.place(block.right_from, block.right_to), block.is_coarse);
}

Reason PairedTexts::reason_of_block(const Block& block) const {
    const auto all = [&](auto is) {
        const auto in = [&](const TextUnits& units, std::size_t from, std::size_t to) {
            return std::all_of(units.begin() + static_cast<std::ptrdiff_t>(from),
                               units.begin() + static_cast<std::ptrdiff_t>(to), is);
        };
        return in(left_.units, block.left_from, block.left_to) &&
               in(right_.units, block.right_from, block.right_to);
    };
    const auto is_blank = [](const TextUnit& unit) { return unit.kind == TextUnit::Class::blank; };
    const auto parts_words = [](const TextUnits& units, std::size_t from, std::size_t to) {
        return from < to && from > 0 && to < units.size() && units[from - 1].is_of_word() &&
               units[to].is_of_word();
    };
    // "ethyl acetate" is not "ethylacetate".
    const bool counts = parts_words(left_.units, block.left_from, block.left_to) ||
                        parts_words(right_.units, block.right_from, block.right_to);
    if (all(is_blank) && !counts) return Reason::blank;
    const auto is_passed_over = [&](const TextUnit& unit) {
        return is_blank(unit) || unit.kind == TextUnit::Class::punctuation;
    };
    if (!all(is_blank) && all(is_passed_over)) return Reason::punctuation;
    if (block.left_from == block.left_to) return Reason::insertion;
    return block.right_from == block.right_to ? Reason::deletion : Reason::replacement;
}

void PairedTexts::add(Reason reason, const StringSlice& left, const StringSlice& right,
                      bool is_coarse) {
    if (findings_.size() > first_) {
        Finding& last = findings_.back();
        const bool goes_on = last.reason == reason && last.left.to() == left.from() &&
                             last.right.to() == right.from();
        if (goes_on) {
            last.left = {last.left.from(), left.to()};
            last.right = {last.right.from(), right.to()};
            return;
        }
    }
    findings_.push_back({.reason = reason, .left = left, .right = right, .is_coarse = is_coarse});
}

}  // namespace

std::vector<Finding> compare_plain_texts(const ComparedText& left, const ComparedText& right,
                                         const ComparisonPolicy& policy) {
    std::vector<Finding> findings;
    compare_plain_texts(left, {0, length_of(left.shown())}, right, {0, length_of(right.shown())},
                        policy, findings);
    return findings;
}

void compare_plain_texts(const ComparedText& left, const StringSlice& left_range,
                         const ComparedText& right, const StringSlice& right_range,
                         const ComparisonPolicy& policy, std::vector<Finding>& findings) {
    TextCutter cutter;
    CutText left_cut = cutter.cut(left, left_range), right_cut = cutter.cut(right, right_range);
    compare_units(std::move(left_cut), std::move(right_cut), policy, findings);
}

void compare_units(CutText left, CutText right, const ComparisonPolicy& policy,
                   std::vector<Finding>& findings) {
    PairedTexts(std::move(left), std::move(right), policy, findings).compare();
}
