#include "text/TextItem.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string_view>
#include <tuple>
#include <utility>

#include "finders/InputTextStyleFinder.h"
#include "markup/RichTextData.h"
#include "markup/RichTextGenerator.h"
#include "text/BoldStyle.h"
#include "text/ColorStyle.h"
#include "text/GreekStyle.h"
#include "text/InvisibleStyle.h"
#include "text/ItalicStyle.h"
#include "text/OverStrikeStyle.h"
#include "text/Position.h"
#include "text/ReplacementTextStyle.h"
#include "text/TextAtom.h"
#include "text/TextAtomPropertyBuilder.h"
#include "text/VerticalAlignStyle.h"

namespace {

// Callers show and match these texts: their wording is interface, slips included.
constexpr char beyond_end[] = "stlye extends beyond end of string error";
constexpr char overlapping[] = "creating an overlapping style error";
constexpr char second_color[] = "color begins at same node as existing color error";
constexpr char within_replacement[] = "style within replacement text style error";
constexpr char nested_replacements[] = "nested replacement texts errror";
constexpr char enclosing_replacement[] = "nascent replacement text enclosing existing style error";
constexpr char bad_line_length[] = "TextItem line length < zero error";

template <class Style, class... Payload>
THandle<Style> activated(unsigned int from, unsigned int to, const Payload&... payload) {
    auto style = make_handle<Style>(payload...);
    style->activate(from, to);
    return style;
}

/// Sees to it that the next push_back() cannot fail.
template <class List>
void make_room(List& list) {
    if (list.size() == list.capacity()) list.reserve(2 * list.size() + 8);
}

/// One end of a style, where it switches its property on or off.
struct Boundary {
    unsigned int position;
    bool begins;
    const TextItemStyle* style;

    void apply(TextAtomPropertyBuilder& builder) const {
        if (begins) {
            style->text_atom_begin(builder);
        } else {
            style->text_atom_end(builder);
        }
    }
};

/// By position, the ends before the beginnings, and in order of creation. Empty styles never end.
std::vector<Boundary> sorted_boundaries(const std::vector<THandle<TextItemStyle>>& styles) {
    std::vector<Boundary> boundaries;
    boundaries.reserve(2 * styles.size());
    for (const auto& style : styles) {
        boundaries.push_back({style->from(), true, style.get()});
        if (style->from() != style->to()) boundaries.push_back({style->to(), false, style.get()});
    }
    std::stable_sort(boundaries.begin(), boundaries.end(),
                     [](const Boundary& a, const Boundary& b) {
                         return std::tie(a.position, a.begins) < std::tie(b.position, b.begins);
                     });
    return boundaries;
}

template <class Slice, class Create>
void create_each(const InputTextStyleFinder& finder,
                 void (InputTextStyleFinder::*query)(std::vector<Slice>&) const, Create create) {
    std::vector<Slice> slices;
    (finder.*query)(slices);
    for (const Slice& slice : slices) create(slice);
}

}  // namespace

TextItem::TextItem(THandle<InputTextStyleFinder> finder) : finder_(std::move(finder)) {}

TextItem::TextItem(THandle<InputTextStyleFinder> finder, const std::string& text)
    : TextItem(std::move(finder)) {
    set_text(text);
}

void TextItem::set_text(const std::string& text) {
    const unsigned int length = length_of(text);
    text_ = text;
    styles_.clear();
    invisible_styles_.clear();
    color_styles_.clear();
    greek_styles_.clear();
    replacement_text_styles_.clear();
    nodes_.reset(length);
    replacement_texts_.clear();
    colors_begin_.clear();
    create_input_text_styles();
}

void TextItem::create_input_text_styles() {
    using Finder = InputTextStyleFinder;
    finder_->set_text(text_);

    std::vector<StringSlice> slices;
    slices.reserve(16);  // for one usual text
    const auto create_plain = [&](void (Finder::*query)(std::vector<StringSlice>&) const,
                                  void (TextItem::*create)(unsigned int, unsigned int)) {
        slices.clear();
        ((*finder_).*query)(slices);
        for (const StringSlice& slice : slices) (this->*create)(slice.from(), slice.to());
    };
    // Replacement texts and colours come last: what they may not enclose must stand already.
    create_plain(&Finder::subscripts, &TextItem::create_subscript);
    create_plain(&Finder::superscripts, &TextItem::create_superscript);
    create_plain(&Finder::overstrike, &TextItem::create_overstrike);
    create_plain(&Finder::invisible, &TextItem::create_invisible);
    create_each(*finder_, &Finder::greek, [this](const GreekSlice& slice) {
        create_greek(slice.from(), slice.to(), slice.symbol());
    });
    create_plain(&Finder::bold, &TextItem::create_bold);
    create_plain(&Finder::italic, &TextItem::create_italic);
    create_each(*finder_, &Finder::replacement_text, [this](const ReplacementTextSlice& slice) {
        create_replacement_text(slice.from(), slice.to(), slice.text());
    });
    create_each(*finder_, &Finder::color, [this](const ColorSlice& slice) {
        create_color(slice.from(), slice.to(), slice.color());
    });
}

void TextItem::set_line_length(unsigned int n) {
    if (n == no_position) throw std::range_error(bad_line_length);
    line_length_ = n < length_of(text_) ? n : 0;
}

void TextItem::create_bold(unsigned int from, unsigned int to) {
    check_overlay(from, to);
    append(activated<BoldStyle>(from, to));
}

void TextItem::create_italic(unsigned int from, unsigned int to) {
    check_overlay(from, to);
    append(activated<ItalicStyle>(from, to));
}

void TextItem::create_overstrike(unsigned int from, unsigned int to) {
    check_overlay(from, to);
    append(activated<OverStrikeStyle>(from, to));
}

void TextItem::create_invisible(unsigned int from, unsigned int to) {
    check_overlay(from, to);
    append(activated<InvisibleStyle>(from, to), invisible_styles_);
}

void TextItem::create_superscript(unsigned int from, unsigned int to) {
    check_overlay(from, to);
    append(activated<VerticalAlignStyle>(from, to, 1));
}

void TextItem::create_subscript(unsigned int from, unsigned int to) {
    check_overlay(from, to);
    append(activated<VerticalAlignStyle>(from, to, -1));
}

void TextItem::create_greek(unsigned int from, unsigned int to, GreekSymbol symbol) {
    check_overlay(from, to);
    append(activated<GreekStyle>(from, to, symbol), greek_styles_);
}

void TextItem::create_color(unsigned int from, unsigned int to, ColorName color) {
    check_overlay(from, to);
    color_at_same_from(from);
    const auto style = activated<ColorStyle>(from, to, color);
    colors_begin_.resize(text_.size() + 1);
    append(style, color_styles_);
    colors_begin_[from] = true;
}

void TextItem::create_replacement_text(unsigned int from, unsigned int to,
                                       const std::string& text) {
    validate_to(to);
    check_no_partial_intersection(from, to);
    check_no_replacement_text_style_nesting(from, to);
    check_no_style_enclosed_by_replacement_text(from, to);
    const auto style = activated<ReplacementTextStyle>(from, to, text);
    std::map<unsigned int, StringSlice> added;
    if (from < to) added.emplace(from, style->slice());
    append(style, replacement_text_styles_);
    replacement_texts_.merge(added);
}

std::string TextItem::mark_up_text(RichTextGenerator& generator) const {
    return generator.mark_up_text(RichTextData(text_, line_length_, styles_, invisible_styles_,
                                               greek_styles_, replacement_text_styles_));
}

bool TextItem::is_active_node(unsigned int pos) const {
    return std::any_of(styles_.begin(), styles_.end(), [pos](const auto& style) {
        return style->from() == pos || style->to() == pos;
    });
}

void TextItem::update_props(unsigned int pos, TextAtomPropertyBuilder& builder) const {
    for (const auto& style : styles_) {
        if (style->to() == pos && style->from() != pos) style->text_atom_end(builder);
    }
    for (const auto& style : styles_) {
        if (style->from() == pos) style->text_atom_begin(builder);
    }
}

std::vector<TextAtom> TextItem::atomize() const {
    const std::vector<Boundary> boundaries = sorted_boundaries(styles_);
    const unsigned int end = std::max(length_of(text_), 1U);
    const std::string_view text(text_.c_str(), end);  // an empty text shows its NUL
    TextAtomPropertyBuilder builder{TextAtomProperty()};
    std::vector<TextAtom> atoms;
    unsigned int run = 0;
    for (const Boundary& boundary : boundaries) {
        if (boundary.position >= end) break;
        if (boundary.position > run) {
            atoms.emplace_back(std::string(text.substr(run, boundary.position - run)),
                               builder.text_atom_property());
            run = boundary.position;
        }
        boundary.apply(builder);
    }
    atoms.emplace_back(std::string(text.substr(run)), builder.text_atom_property());
    return atoms;
}

void TextItem::print(std::ostream& os) const {
    for (const auto& style : styles_) style->print(os);
}

void TextItem::validate_to(unsigned int to) const {
    if (to > length_of(text_)) throw std::range_error(beyond_end);
}

void TextItem::check_no_partial_intersection(unsigned int from, unsigned int to) const {
    if (nodes_.crosses(StringSlice(from, to))) throw std::range_error(overlapping);
}

void TextItem::check_not_within_replacement_text_style(unsigned int from, unsigned int to) const {
    // Replacement texts are disjoint: only the last that begins at `from` or before can reach `to`.
    const auto next = replacement_texts_.upper_bound(from);
    if (next == replacement_texts_.begin()) return;
    if (std::prev(next)->second.has_proper_subset(StringSlice(from, to))) {
        throw std::range_error(within_replacement);
    }
}

void TextItem::check_no_replacement_text_style_nesting(unsigned int from, unsigned int to) const {
    const StringSlice slice(from, to);
    const auto next = replacement_texts_.upper_bound(from);
    if ((next != replacement_texts_.begin() && std::prev(next)->second.are_subsets(slice)) ||
        (next != replacement_texts_.end() && next->second.are_subsets(slice))) {
        throw std::range_error(nested_replacements);
    }
}

void TextItem::check_no_style_enclosed_by_replacement_text(unsigned int from, unsigned int to) {
    // Nothing crosses the slice, so a style with an end inside lies inside as a whole.
    if (nodes_.any_inside(StringSlice(from, to))) throw std::range_error(enclosing_replacement);
}

void TextItem::color_at_same_from(unsigned int from) const {
    if (from < colors_begin_.size() && colors_begin_[from]) throw std::range_error(second_color);
}

void TextItem::check_overlay(unsigned int from, unsigned int to) const {
    validate_to(to);
    check_no_partial_intersection(from, to);
    check_not_within_replacement_text_style(from, to);
}

void TextItem::append(THandle<TextItemStyle> style) {
    make_room(styles_);
    nodes_.add(style->slice());
    styles_.push_back(std::move(style));
}

template <class Style, class Base>
void TextItem::append(const THandle<Style>& style, std::vector<THandle<Base>>& own_list) {
    make_room(own_list);
    append(style);
    own_list.push_back(style);
}

std::ostream& operator<<(std::ostream& os, const TextItem& item) {
    item.print(os);
    return os;
}
