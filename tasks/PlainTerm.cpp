#include "tasks/PlainTerm.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "comparison/folding.h"
#include "markup/Utf8.h"
#include "tasks/row_named.h"
#include "text/Position.h"

namespace {

bool is_of_word(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           static_cast<unsigned char>(c) >= 0x80;
}

std::string trimmed(std::string text) {
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

bool is_greek(char32_t code) { return code >= U'Ͱ' && code <= U'Ͽ'; }

bool begins_with_greek(std::string_view text) {
    return !text.empty() && is_greek(first_character(text).code);
}

bool ends_with_greek(std::string_view text) {
    if (text.empty()) return false;
    return begins_with_greek(text.substr(start_of_character(text, length_of(text) - 1)));
}

/// Whether the texts of the field are formulae.
bool is_of_formulae(const Field& field) {
    static const ComparisonKind* const kind = row_named(comparison_kinds(), "formula");
    return field.comparison == kind;
}

/// Whether there are numbers in the field's texts and nothing else but their labels.
bool is_of_numbers(const Field& field) {
    using Names = LMRFieldNames;
    switch (field.id.value_or(Names::identifier)) {
        case Names::cell_lengths:
        case Names::cell_angles:
        case Names::cell_volume:
        case Names::reduced_cell_lengths:
        case Names::reduced_cell_angles:
        case Names::reduced_cell_volume:
        case Names::temperature:
        case Names::average_sigma:
        case Names::r_factor:
        case Names::z_zprime:
        case Names::number_of_coordinates:
            return true;
        default:
            return false;
    }
}

/// What the field says of the entry's cell or reduced cell, in numbers; none: not known.
std::vector<double> values_in(const CifEntry& entry, const Field& field) {
    using Names = LMRFieldNames;
    const CrystalInfo& crystal = *entry.entry->crystal_info;
    const auto& cell = crystal.cell;
    const auto& reduced = crystal.reduced_cell;
    if (field.id == Names::cell_lengths && cell)
        return {cell->a.value, cell->b.value, cell->c.value};
    if (field.id == Names::cell_angles && cell) {
        return {cell->alpha.degrees.value, cell->beta.degrees.value, cell->gamma.degrees.value};
    }
    if (field.id == Names::reduced_cell_lengths && reduced)
        return {reduced->a, reduced->b, reduced->c};
    if (field.id == Names::reduced_cell_angles && reduced) {
        return {reduced->alpha, reduced->beta, reduced->gamma};
    }
    return {};
}

/// Whether one of the values, written and rounded to so many decimals, may be the number; true
/// where there are none.
bool is_near_some(double number, std::size_t decimals, const std::vector<double>& values) {
    constexpr double six_digits = 1e-5;  // with as many values without uncertainty are written
    const double last_place = std::pow(10.0, -static_cast<double>(decimals));
    return values.empty() || std::any_of(values.begin(), values.end(), [&](double value) {
               return std::abs(value - number) <= last_place + six_digits * std::abs(value);
           });
}

bool is_of_group(const Field& field) { return field.id == LMRFieldNames::space_group; }

}  // namespace

PlainTerm::PlainTerm(const std::string& written, const std::string& text,
                     const TermSettings& settings, std::vector<Field> own_fields)
    : Term(written, std::move(own_fields)),
      text_(trimmed(text)),
      folded_(trimmed(folded(text_, settings.folding))),
      whole_words_(settings.whole_words),
      begins_with_greek_(settings.folding.greek && begins_with_greek(text_)),
      ends_with_greek_(settings.folding.greek && ends_with_greek(text_)),
      number_(whole_number(folded_.text())) {
    for (const std::string& skeleton :
         number_ ? number_->first_digits() : std::vector{skeleton_of(folded_.text())}) {
        skeletons_.emplace_back(skeleton);
    }
    if (number_) return;
    if (is_plain_formula(text_)) elements_ = elements_in(text_);
    group_ = find_space_group(text_, 0, 0);
    if (!elements_.empty() || group_.group) whole_words_ = true;
}

PlainTerm::~PlainTerm() = default;

bool PlainTerm::may_stand_in(const Field& field) const {
    return Term::may_stand_in(field) && (number_ || !is_of_numbers(field));
}

bool PlainTerm::may_stand_on(const std::string& skeleton) const {
    return std::any_of(skeletons_.begin(), skeletons_.end(),
                       [&](const SoughtText& own) { return own.stands_in(skeleton); });
}

/// Numbers are compared with those of cells before these are written.
bool PlainTerm::may_stand_in(const CifEntry& entry, const Field& field) const {
    return !number_ ||
           is_near_some(number_->value(), number_->decimals.size(), values_in(entry, field));
}

void PlainTerm::find(const SearchedText& text, std::vector<StringSlice>& ranges) const {
    if (!elements_.empty() && is_of_formulae(text.field())) {
        const std::vector<StringSlice> places = places_of(elements_, text.shown());
        ranges.insert(ranges.end(), places.begin(), places.end());
    } else if (group_.group && is_of_group(text.field())) {
        if (is_group_of(text.entry())) ranges.emplace_back(0, length_of(text.shown()));
    } else if (number_) {
        find_numbers(text.folded(), ranges);
    } else {
        find_words(text, ranges);
    }
}

bool PlainTerm::is_group_of(const CifEntry& entry) const {
    const SpaceGroupSetting own =
        find_space_group(entry.entry->crystal_info->spacegroup.symbol, 0, 0);
    return own.group && allows(group_, *own.group);
}

void PlainTerm::find_numbers(const FoldedText& text, std::vector<StringSlice>& ranges) const {
    for (const SearchedNumber& number : numbers_in(text.text())) {
        if (!number_->may_stand_for(number)) continue;
        const StringSlice& place = number.place;
        const unsigned int from = place.from() - (number_->is_negative ? 1 : 0);
        const auto in_text = text.whole_characters({from, place.to()});
        if (in_text) ranges.push_back(*in_text);
    }
}

void PlainTerm::find_words(const SearchedText& text, std::vector<StringSlice>& ranges) const {
    const FoldedText& whole = text.folded();
    SoughtText::Places places(folded_, whole.text());
    for (std::size_t at = places.next(); at != std::string::npos; at = places.next()) {
        const StringSlice range(to_position(at), to_position(at + folded_.text().size()));
        if (!whole.is_boundary(range.from()) || !whole.is_boundary(range.to())) continue;
        const StringSlice shown = whole.in_text(range);
        if (!stands_alone(text, range, shown)) continue;
        ranges.push_back(shown);
        places.pass_over();
    }
}

/// Whether what a range is beside is no part of the same word, as far as this matters.
bool PlainTerm::stands_alone(const SearchedText& text, const StringSlice& folded,
                             const StringSlice& shown) const {
    const std::string& all = text.folded().text();
    const std::string_view match =
        std::string_view(text.shown()).substr(shown.from(), shown.length());
    // The name of a letter is no part of a longer word, but the letter is.
    const bool needs_begin = whole_words_ || (begins_with_greek_ && !begins_with_greek(match));
    const bool needs_end = whole_words_ || (ends_with_greek_ && !ends_with_greek(match));
    if (needs_begin && folded.from() > 0 && is_of_word(folded_.text().front()) &&
        is_of_word(all[folded.from() - 1])) {
        return false;
    }
    return !(needs_end && folded.to() < all.size() && is_of_word(folded_.text().back()) &&
             is_of_word(all[folded.to()]));
}
