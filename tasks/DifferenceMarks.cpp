#include "tasks/DifferenceMarks.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>

#include "tasks/BracketedText.h"
#include "tasks/styles_of.h"
#include "text/Position.h"

namespace {

using Kind = TextItemStyle::Kind;
using Styles = std::vector<THandle<TextItemStyle>>;

/// A range to mark.
struct Mark {
    StringSlice range;
    bool is_equivalent;
};
using Marks = std::vector<Mark>;

constexpr std::string_view opening[] = {"[-", "{+"}, closing[] = {"-]", "+}"};

bool is_whole(Kind kind) {
    return kind == Kind::invisible || kind == Kind::greek || kind == Kind::replacement_text ||
           kind == Kind::subscript || kind == Kind::superscript;
}

/// The ranges as disjoint and ascending ones: those that overlap become one.
std::vector<StringSlice> merged(std::vector<StringSlice> ranges) {
    std::sort(ranges.begin(), ranges.end(),
              [](const StringSlice& a, const StringSlice& b) { return a.from() < b.from(); });
    std::vector<StringSlice> disjoint;
    for (const StringSlice& range : ranges) {
        if (!disjoint.empty() && disjoint.back().overlaps(range)) {
            disjoint.back() = disjoint.back().combine(range);
        } else if (!range.empty()) {
            disjoint.push_back(range);
        }
    }
    return disjoint;
}

/// Where an item has styles of some kinds.
std::vector<StringSlice> ranges_of(const Styles& styles, bool (*is_meant)(Kind kind)) {
    std::vector<StringSlice> ranges;
    for (const auto& style : styles) {
        if (is_meant(style->kind())) ranges.push_back(style->slice());
    }
    return merged(std::move(ranges));
}

/// The first of disjoint ranges that ends behind a position.
auto first_behind(const std::vector<StringSlice>& ranges, unsigned int position) {
    return std::upper_bound(
        ranges.begin(), ranges.end(), position,
        [](unsigned int place, const StringSlice& range) { return place < range.to(); });
}

/// The range that holds a position strictly within it, or null.
const StringSlice* around(const std::vector<StringSlice>& ranges, unsigned int position) {
    const auto next = first_behind(ranges, position);
    return next != ranges.end() && next->from() < position ? &*next : nullptr;
}

bool is_within_character(const std::string& text, unsigned int position) {
    return position < text.size() && (static_cast<unsigned char>(text[position]) & 0xC0) == 0x80;
}

/// The range and what it would cut of characters and of `whole` ranges.
StringSlice widened(const std::string& text, const std::vector<StringSlice>& whole,
                    const StringSlice& range) {
    const unsigned int length = length_of(text);
    unsigned int from = std::min(range.from(), length), to = std::min(range.to(), length);
    if (from == to) return {from, to};
    while (from > 0 && is_within_character(text, from)) --from;
    while (is_within_character(text, to)) ++to;
    if (const StringSlice* const cut = around(whole, from)) from = cut->from();
    if (const StringSlice* const cut = around(whole, to)) to = cut->to();
    return {from, to};
}

/// Disjoint and ascending; those that touch become one where `joins` is set or both count alike.
Marks marks_of(const TextItem& item, const Styles& styles, const std::vector<Finding>& findings,
               StringSlice Finding::*side, bool joins) {
    const std::vector<StringSlice> whole = ranges_of(styles, is_whole);
    Marks all, disjoint;
    for (const Finding& finding : findings) {
        const StringSlice range = widened(item.characters(), whole, finding.*side);
        if (!range.empty()) all.push_back({range, finding.is_equivalent});
    }
    std::sort(all.begin(), all.end(),
              [](const Mark& a, const Mark& b) { return a.range.from() < b.range.from(); });
    for (const Mark& mark : all) {
        Mark* const last = disjoint.empty() ? nullptr : &disjoint.back();
        const bool touches = last && last->range.to() == mark.range.from();
        if (last && (last->range.overlaps(mark.range) ||
                     (touches && (joins || last->is_equivalent == mark.is_equivalent)))) {
            last->range = last->range.combine(mark.range);
            last->is_equivalent = last->is_equivalent && mark.is_equivalent;
        } else {
            disjoint.push_back(mark);
        }
    }
    return disjoint;
}

/// Lays styles on an item beside those that it has.
class StyleMarker {
public:
    explicit StyleMarker(const Styles& styles)
        : bold_(ranges_of(styles, [](Kind kind) { return kind == Kind::bold; })) {
        for (const auto& style : styles) {
            if (style->slice().empty()) continue;
            nodes_.push_back({style->from(), style->slice()});
            nodes_.push_back({style->to(), style->slice()});
            if (style->kind() == Kind::color) colored_from_.push_back(style->from());
        }
        std::sort(nodes_.begin(), nodes_.end());
        std::sort(colored_from_.begin(), colored_from_.end());
    }

    /// In pieces, where a style would be crossed. Bold in bold would end it in some targets.
    void mark(TextItem& item, const StringSlice& range, TextItem::ColorName color) const {
        unsigned int from = range.from();
        const auto mark_to = [&](unsigned int to) {
            if (to == from) return;
            if (!is_bold({from, to})) item.create_bold(from, to);
            if (!std::binary_search(colored_from_.begin(), colored_from_.end(), from)) {
                item.create_color(from, to, color);
            }
            from = to;
        };
        auto node = std::upper_bound(
            nodes_.begin(), nodes_.end(), range.from(),
            [](unsigned int position, const Node& n) { return position < n.position; });
        for (; node != nodes_.end() && node->position < range.to(); ++node) {
            if (node->style.partial_intersection(range)) mark_to(node->position);
        }
        mark_to(range.to());
    }

private:
    /// Where a style begins or ends.
    struct Node {
        unsigned int position;
        StringSlice style;

        bool operator<(const Node& other) const {
            return std::tuple(position, style.from(), style.to()) <
                   std::tuple(other.position, other.style.from(), other.style.to());
        }
    };

    bool is_bold(const StringSlice& range) const {
        const auto next = first_behind(bold_, range.from());
        return next != bold_.end() && next->from() < range.to();
    }

    std::vector<Node> nodes_;
    std::vector<StringSlice> bold_;  // disjoint and ascending
    std::vector<unsigned int> colored_from_;
};

}  // namespace

DifferenceMarks::DifferenceMarks(const RichTextTarget& target) {
    const THandle<RichTextGenerator> generator = target.make_generator();
    has_styles_ =
        shows_style(*generator, [](TextItem& item) { item.create_bold(0, 1); }) ||
        shows_style(*generator, [](TextItem& item) { item.create_color(0, 1, TextItem::red); });
}

TextItem DifferenceMarks::marked(const TextItem& item, const std::vector<Finding>& findings,
                                 Side side) const {
    const Styles styles = styles_of(item);
    const Marks marks = marks_of(item, styles, findings,
                                 side == left ? &Finding::left : &Finding::right, !has_styles_);
    if (!has_styles_) {
        std::vector<StringSlice> ranges;
        for (const Mark& mark : marks) ranges.push_back(mark.range);
        return BracketedText(item.characters(), ranges, opening[side], closing[side]).item(styles);
    }
    const StyleMarker marker(styles);
    const TextItem::ColorName different = side == left ? TextItem::red : TextItem::green4;
    TextItem result = item;
    for (const Mark& mark : marks) {
        marker.mark(result, mark.range, mark.is_equivalent ? TextItem::blue : different);
    }
    return result;
}
