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
#include "text/internal/ascii.h"

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

bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }

/// Where the first word of two letters or more begins, if small letters follow its first: case
/// tells "N-butyl" from "n-butyl" and "pH" from "PH", and not "N-Butyl" from "N-butyl".
std::size_t first_letter(const CutText& text) {
    const auto is_pair = [](const TextUnit& unit, const TextUnit& next) {
        return unit.kind == TextUnit::Class::letter && next.kind == TextUnit::Class::letter;
    };
    const TextUnits& units = text.units;
    const auto first = std::adjacent_find(units.begin(), units.end(), is_pair);
    const bool is_word = first != units.end() && !is_capital(text.shown(first[1])[0]);
    return is_word ? static_cast<std::size_t>(first - units.begin()) : units.size();
}

/// Whether it is a Greek letter that is spelled.
bool is_greek_name(const CutText& text, const TextUnit& unit) {
    return unit.kind == TextUnit::Class::letter && unit.to - unit.from > 1 &&
           is_ascii_letter(text.shown(unit)[0]);
}

/// Pairs the units of two texts, and compares each with its partner.
class PairedTexts {
public:
    PairedTexts(CutText left, CutText right, const ComparisonPolicy& policy,
                std::vector<Finding>& findings)
        : left_(std::move(left)),
          right_(std::move(right)),
          left_first_letter_(first_letter(left_)),
          right_first_letter_(first_letter(right_)),
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
    Reason reason_of_texts(std::string_view left, std::string_view right, bool is_same_script,
                           bool is_first_letter) const;
    void add_block(const Block& block);
    Reason reason_of_block(const Block& block) const;
    bool differs_in_blanks(const Block& block) const;
    /// Adds a finding, to the last one where both say the same of characters in a row.
    void add(Reason reason, const StringSlice& left, const StringSlice& right, bool is_coarse);

    CutText left_, right_;
    std::size_t left_first_letter_, right_first_letter_;
    const ComparisonPolicy& policy_;
    std::vector<Finding>& findings_;
    std::size_t first_;  // of our findings
};

std::optional<Reason> PairedTexts::reason_of_pair(std::size_t i, std::size_t j) const {
    const TextUnit &left = left_.units[i], &right = right_.units[j];
    if (left.key >= opaque_key) return {};
    const std::string_view left_text = left_.shown(left), right_text = right_.shown(right);
    const bool is_same_script = left.valign == right.valign && left.is_barred == right.is_barred;
    if (left_text == right_text) {
        if (!is_same_script) return Reason::script;
        if (left_.text.written(left.place()) == right_.text.written(right.place())) return {};
        const bool is_greek = folded(left_text, {}) != folded(left_text, {.greek = false});
        return is_greek ? Reason::greek : Reason::coding;
    }
    if (left.kind == TextUnit::Class::blank) return Reason::blank;
    const bool is_name = is_greek_name(left_, left) && is_greek_name(right_, right) &&
                         i < left_first_letter_ && j < right_first_letter_;
    const bool is_first = is_name || (i == left_first_letter_ && j == right_first_letter_);
    return reason_of_texts(left_text, right_text, is_same_script, is_first);
}

/// Why two texts differ that are folded alike: of reasons that hold together one that counts.
Reason PairedTexts::reason_of_texts(std::string_view left, std::string_view right,
                                    bool is_same_script, bool is_first_letter) const {
    std::optional<Reason> found;
    const auto note = [&](Reason reason) {
        if (!found || (policy_.allows(*found) && !policy_.allows(reason))) found = reason;
    };
    if (!is_same_script) note(Reason::script);
    for (const Row& row : rows) {
        Folding others;
        others.*row.flag = false;
        if (folded(left, others) == folded(right, others)) continue;
        if (row.reason == Reason::script) {
            note(is_same_script ? Reason::coding : Reason::script);
        } else if (row.reason == Reason::letter_case && is_first_letter) {
            note(Reason::first_letter_case);
        } else {
            note(row.reason);
        }
    }
    if (found) return *found;
    // "ß" is "ss" in other case, and without its mark.
    Folding neither;
    neither.accents = neither.letter_case = false;
    return folded(left, neither) == folded(right, neither) ? Reason::coding : Reason::accent;
}

void PairedTexts::add_block(const Block& block) {
    add(reason_of_block(block), left_.place(block.left_from, block.left_to),
        right_.place(block.right_from, block.right_to), block.is_coarse);
}

Reason PairedTexts::reason_of_block(const Block& block) const {
    if (differs_in_blanks(block)) return Reason::blank;
    const auto all = [&](auto is) {
        const auto in = [&](const TextUnits& units, std::size_t from, std::size_t to) {
            return std::all_of(units.begin() + static_cast<std::ptrdiff_t>(from),
                               units.begin() + static_cast<std::ptrdiff_t>(to), is);
        };
        return in(left_.units, block.left_from, block.left_to) &&
               in(right_.units, block.right_from, block.right_to);
    };
    const auto is_blank = [](const TextUnit& unit) { return unit.kind == TextUnit::Class::blank; };
    const auto is_passed_over = [&](const TextUnit& unit) {
        return is_blank(unit) || unit.kind == TextUnit::Class::punctuation;
    };
    if (!all(is_blank) && all(is_passed_over)) return Reason::punctuation;
    if (block.left_from == block.left_to) return Reason::insertion;
    if (block.right_from == block.right_to) return Reason::deletion;
    // "ß" and "ss", or one script and the characters of it, are no pairs of units.
    const auto text = [](const CutText& side, std::size_t from, std::size_t to) {
        const StringSlice place = side.place(from, to);
        return side.text.shown().substr(place.from(), place.length());
    };
    const std::string_view left = text(left_, block.left_from, block.left_to);
    const std::string_view right = text(right_, block.right_from, block.right_to);
    const bool is_for_numbers = !all([](const TextUnit& unit) { return unit.key < opaque_key; });
    if (is_for_numbers || folded(left, {}) != folded(right, {})) return Reason::replacement;
    const TextUnit& first = left_.units[block.left_from];
    const bool is_same_script = all([&](const TextUnit& unit) {
        return unit.valign == first.valign && unit.is_barred == first.is_barred;
    });
    return left == right ? Reason::script : reason_of_texts(left, right, is_same_script, false);
}

/// Whether the block has the same on either side, blanks aside, and none of these parts words:
/// "ethyl acetate" is not "ethylacetate".
bool PairedTexts::differs_in_blanks(const Block& block) const {
    const auto is_blank = [](const TextUnit& unit) { return unit.kind == TextUnit::Class::blank; };
    const auto keys = [&](const TextUnits& units, std::size_t from, std::size_t to,
                          std::vector<std::uint32_t>& result) {
        for (std::size_t i = from; i < to; ++i) {
            if (!is_blank(units[i])) result.push_back(units[i].key);
            const bool parts_words = is_blank(units[i]) && i > 0 && i + 1 < units.size() &&
                                     units[i - 1].is_of_word() && units[i + 1].is_of_word();
            if (parts_words) return false;
        }
        return true;
    };
    std::vector<std::uint32_t> left, right;
    return keys(left_.units, block.left_from, block.left_to, left) &&
           keys(right_.units, block.right_from, block.right_to, right) && left == right;
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
            last.is_coarse = last.is_coarse || is_coarse;
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
