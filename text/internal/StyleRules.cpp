#include "text/internal/StyleRules.h"

#include <iterator>
#include <stdexcept>

namespace {

// Callers show and match these texts: their wording is interface, slips included.
constexpr char beyond_end[] = "stlye extends beyond end of string error";
constexpr char overlapping[] = "creating an overlapping style error";
constexpr char second_color[] = "color begins at same node as existing color error";
constexpr char within_replacement[] = "style within replacement text style error";
constexpr char nested_replacements[] = "nested replacement texts errror";
constexpr char enclosing_replacement[] = "nascent replacement text enclosing existing style error";

}  // namespace

void StyleRules::reset(unsigned int text_length) {
    text_length_ = text_length;
    nodes_.reset(text_length);
    replacement_texts_.clear();
    colors_begin_.clear();
}

void StyleRules::check_overlay(unsigned int from, unsigned int to) const {
    check_no_crossing(from, to);
    check_not_within_replacement_text(from, to);
}

void StyleRules::check_color(unsigned int from, unsigned int to) const {
    check_overlay(from, to);
    if (from < colors_begin_.size() && colors_begin_[from]) throw std::range_error(second_color);
}

void StyleRules::check_replacement_text(unsigned int from, unsigned int to) {
    check_no_crossing(from, to);
    check_no_nested_replacement_text(from, to);
    // Nothing crosses the slice, so a style with an end inside lies inside as a whole.
    if (nodes_.any_inside(StringSlice(from, to))) throw std::range_error(enclosing_replacement);
}

void StyleRules::add_overlay(const StringSlice& style) { nodes_.add(style); }

void StyleRules::add_color(const StringSlice& style) {
    colors_begin_.resize(text_length_ + std::size_t{1});
    nodes_.add(style);
    colors_begin_[style.from()] = true;
}

void StyleRules::add_replacement_text(const StringSlice& style) {
    std::map<unsigned int, StringSlice> added;
    if (!style.empty()) added.emplace(style.from(), style);
    nodes_.add(style);
    replacement_texts_.merge(added);
}

void StyleRules::check_no_crossing(unsigned int from, unsigned int to) const {
    if (to > text_length_) throw std::range_error(beyond_end);
    if (nodes_.crosses(StringSlice(from, to))) throw std::range_error(overlapping);
}

void StyleRules::check_not_within_replacement_text(unsigned int from, unsigned int to) const {
    if (replacement_texts_.empty()) return;
    // Replacement texts are disjoint: only the last that begins at `from` or before can reach `to`.
    const auto next = replacement_texts_.upper_bound(from);
    if (next == replacement_texts_.begin()) return;
    if (std::prev(next)->second.has_proper_subset(StringSlice(from, to))) {
        throw std::range_error(within_replacement);
    }
}

void StyleRules::check_no_nested_replacement_text(unsigned int from, unsigned int to) const {
    const StringSlice slice(from, to);
    const auto next = replacement_texts_.upper_bound(from);
    if ((next != replacement_texts_.begin() && std::prev(next)->second.are_subsets(slice)) ||
        (next != replacement_texts_.end() && next->second.are_subsets(slice))) {
        throw std::range_error(nested_replacements);
    }
}
