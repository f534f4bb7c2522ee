#include "markup/internal/NestedStyles.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "markup/Utf8.h"
#include "text/Position.h"
#include "text/TextItemStyle.h"
#include "text/internal/sort_runs.h"

namespace {

/// A part of a style's slice with the style's tags.
class StylePiece : public TextItemStyle {
public:
    explicit StylePiece(THandle<TextItemStyle> whole) : whole_(std::move(whole)) {}

    Kind kind() const override { return whole_->kind(); }
    std::string start_tag(const RichTextTagFactory& factory) const override {
        return whole_->start_tag(factory);
    }
    std::string end_tag(const RichTextTagFactory& factory) const override {
        return whole_->end_tag(factory);
    }
    void text_atom_begin(TextAtomPropertyBuilder& builder) const override {
        whole_->text_atom_begin(builder);
    }
    void text_atom_end(TextAtomPropertyBuilder& builder) const override {
        whole_->text_atom_end(builder);
    }
    void print(std::ostream& os) const override { whole_->print(os); }

private:
    THandle<TextItemStyle> whole_;
};

THandle<TextItemStyle> cut(const THandle<TextItemStyle>& style, unsigned int from,
                           unsigned int to) {
    if (style->from() == from && style->to() == to) return style;
    const auto piece = make_handle<StylePiece>(style);
    piece->activate(from, to);
    return piece;
}

/// A style and the piece of it that is in work.
struct OpenStyle {
    std::size_t index;  // in the caller's list
    unsigned int from;  // of the piece
    unsigned int to;    // of the style, or of the text where that ends first
};

bool opens_first(const OpenStyle& a, const OpenStyle& b) {
    return a.to != b.to ? a.to > b.to : a.index < b.index;
}

bool begins_first(const OpenStyle& a, const OpenStyle& b) {
    return a.from != b.from ? a.from < b.from : opens_first(a, b);
}

bool ends_first(const OpenStyle& a, const OpenStyle& b) { return a.to < b.to; }

/// The styles that stand open at the end of the text gone through so far.
class OpenStyles {
public:
    OpenStyles(const RichTextData::Styles& styles, RichTextData::Styles& pieces)
        : styles_(styles), pieces_(pieces), depth_(styles.size()) {}

    void open(const OpenStyle& style) {
        depth_[style.index] = open_.size();
        open_.push_back(style);
    }

    /// Closes the styles [first, last), which end at `position`. Those that stand open around them
    /// stay; those that opened after them close too and open again, the one that ends last first.
    void close(unsigned int position, std::vector<OpenStyle>::const_iterator first,
               std::vector<OpenStyle>::const_iterator last) {
        std::size_t lowest = open_.size();
        for (auto style = first; style != last; ++style) {
            lowest = std::min(lowest, depth_[style->index]);
        }
        // As many again are put in order below: styles that cross at every turn would otherwise be
        // cut as often as there are styles.
        const auto ended = static_cast<std::size_t>(last - first);
        lowest -= std::min(lowest, open_.size() - lowest - ended);

        std::vector<OpenStyle> again;
        for (auto style = open_.begin() + static_cast<std::ptrdiff_t>(lowest); style != open_.end();
             ++style) {
            pieces_.push_back(cut(styles_[style->index], style->from, position));
            if (style->to > position) again.push_back({style->index, position, style->to});
        }
        open_.resize(lowest);
        std::sort(again.begin(), again.end(), opens_first);
        for (const OpenStyle& style : again) open(style);
    }

private:
    const RichTextData::Styles& styles_;
    RichTextData::Styles& pieces_;
    std::vector<OpenStyle> open_;     // the innermost last
    std::vector<std::size_t> depth_;  // of each open style in open_, by its index
};

bool is_in_character(std::string_view text, unsigned int position) {
    return position < text.size() && is_continuation_byte(text[position]) &&
           start_of_character(text, position) != position;
}

bool none_cross(const RichTextData::Styles& styles) {
    for (auto style = styles.begin(); style != styles.end(); ++style) {
        const auto crosses = [&style](const THandle<TextItemStyle>& other) {
            return other->slice().partial_intersection((*style)->slice());
        };
        if (std::any_of(styles.begin(), style, crosses)) return false;
    }
    return true;
}

/// The same, by way of their order.
bool none_cross_in_order(const RichTextData::Styles& styles) {
    std::vector<std::uint64_t> begins;  // of two at one position the one that ends last comes first
    begins.reserve(styles.size());
    for (const auto& style : styles) {
        if (style->slice().empty()) continue;
        begins.push_back(std::uint64_t{style->from()} << 32 | (no_position - style->to()));
    }
    sort_runs(begins);
    // The ends of those that stand open take the place of those that were gone through.
    std::size_t open = 0;
    for (const std::uint64_t begin : begins) {
        const auto from = static_cast<unsigned int>(begin >> 32);
        const unsigned int to = no_position - static_cast<unsigned int>(begin);
        while (open > 0 && begins[open - 1] <= from) --open;
        if (open > 0 && begins[open - 1] < to) return false;
        begins[open++] = to;
    }
    return true;
}

}  // namespace

NestedStyles::NestedStyles(const RichTextData::Styles& styles, std::string_view text) {
    std::vector<OpenStyle> by_begin;
    for (std::size_t i = 0; i < styles.size(); ++i) {
        const unsigned int from = start_of_character(text, styles[i]->from());
        const unsigned int to =
            start_of_character(text, std::min(styles[i]->to(), length_of(text)));
        if (from < to) by_begin.push_back({i, from, to});
    }
    std::vector<OpenStyle> by_end = by_begin;
    std::sort(by_begin.begin(), by_begin.end(), begins_first);
    std::sort(by_end.begin(), by_end.end(), ends_first);

    OpenStyles open(styles, pieces_);
    auto begin = by_begin.cbegin();
    for (auto end = by_end.cbegin(); end != by_end.cend();) {
        for (; begin != by_begin.cend() && begin->from < end->to; ++begin) open.open(*begin);
        const auto last = std::upper_bound(end, by_end.cend(), *end, ends_first);
        open.close(end->to, end, last);
        end = last;
    }
}

bool NestedStyles::are_nested(const RichTextData::Styles& styles, std::string_view text) {
    for (const auto& style : styles) {
        if (style->to() > length_of(text) || is_in_character(text, style->from()) ||
            is_in_character(text, style->to())) {
            return false;
        }
    }
    constexpr std::size_t few = 8;  // each with each takes less than to put them in order
    return styles.size() <= few ? none_cross(styles) : none_cross_in_order(styles);
}
