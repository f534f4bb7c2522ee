#include "finders/TextSearchStyleFinder.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <utility>

#include "host/KOVRLog.h"
#include "host/VectorOutput.h"
#include "text/StringSliceReducer.h"

namespace {

constexpr int debug_level = 3;

void remove_overlap(StringSlice& match, const StringSlice& style) {
    const bool runs_out = match.from() >= style.from();
    const unsigned int cut = runs_out ? style.to() : style.from();
    const StringSlice left(match.from(), cut);
    const StringSlice right(cut, match.to());
    const StringSlice& inside = runs_out ? left : right;
    const StringSlice& outside = runs_out ? right : left;
    match = outside.length() >= inside.length() ? outside : inside;
}

/// Trims a match until it crosses none of the styles: of those that it crosses, always the first in
/// the order of the list cuts it next.
class RemoveOverlap {
public:
    explicit RemoveOverlap(const std::vector<StringSlice>& styles) : styles_(styles) {
        starts_.reserve(styles.size());
        ends_.reserve(styles.size());
        for (unsigned int i = 0; i < styles.size(); ++i) {
            starts_.emplace_back(styles[i].from(), i);
            ends_.emplace_back(styles[i].to(), i);
        }
        std::sort(starts_.begin(), starts_.end());
        std::sort(ends_.begin(), ends_.end());
    }

    StringSlice operator()(StringSlice match) const {
        Crossing crossing;
        note(starts_, match.from(), match.to(), match, crossing);
        note(ends_, match.from(), match.to(), match, crossing);
        while (!crossing.empty()) {
            const StringSlice& style = styles_[crossing.top()];
            crossing.pop();
            if (!match.partial_intersection(style)) continue;
            const StringSlice whole = match;
            remove_overlap(match, style);
            // The new end may lie in styles that were within the match before.
            note(starts_, whole.from(), match.from(), match, crossing);
            note(ends_, match.to(), whole.to() + 1, match, crossing);
        }
        return match;
    }

private:
    /// One end of a style and the style's place in the list.
    using End = std::pair<unsigned int, unsigned int>;
    /// Places of styles, the first of the list on top.
    using Crossing = std::priority_queue<unsigned int, std::vector<unsigned int>, std::greater<>>;

    /// Adds the styles with an end in [from, to) that cross the match.
    void note(const std::vector<End>& ends, unsigned int from, unsigned int to,
              const StringSlice& match, Crossing& crossing) const {
        auto end = std::lower_bound(ends.begin(), ends.end(), End{from, 0});
        for (; end != ends.end() && end->first < to; ++end) {
            if (match.partial_intersection(styles_[end->second])) crossing.push(end->second);
        }
    }

    const std::vector<StringSlice>& styles_;
    std::vector<End> starts_;
    std::vector<End> ends_;
};

void trim(std::vector<StringSlice>& matches, const std::vector<StringSlice>& styles) {
    const RemoveOverlap trimmed(styles);
    for (StringSlice& match : matches) match = trimmed(match);
}

/// Tells whether some slice of a list overlaps a match and reaches beyond it.
class PartMatchesAny {
public:
    explicit PartMatchesAny(std::vector<StringSlice> slices) : by_start_(std::move(slices)) {
        std::sort(by_start_.begin(), by_start_.end(), starts_first);
        unsigned int furthest = 0;
        furthest_end_.reserve(by_start_.size());
        for (const StringSlice& slice : by_start_) {
            furthest = std::max(furthest, slice.to());
            furthest_end_.push_back(furthest);
        }
    }

    bool operator()(const StringSlice& match) const {
        if (match.empty()) return false;
        return end_of_those_before(match.from()) > match.from() ||
               end_of_those_before(match.to()) > match.to();
    }

private:
    static bool starts_first(const StringSlice& a, const StringSlice& b) {
        return a.from() < b.from();
    }

    /// How far the slices reach that start before `position`.
    unsigned int end_of_those_before(unsigned int position) const {
        const auto starts_before = [](const StringSlice& slice, unsigned int limit) {
            return slice.from() < limit;
        };
        const auto count =
            std::lower_bound(by_start_.begin(), by_start_.end(), position, starts_before) -
            by_start_.begin();
        return count == 0 ? 0 : furthest_end_[static_cast<std::size_t>(count) - 1];
    }

    std::vector<StringSlice> by_start_;
    std::vector<unsigned int> furthest_end_;  // of the slices up to each
};

/// Appends the ranges of the slices that a query of `finder` reports.
template <class Slice>
void append_ranges(const InputTextStyleFinder& finder,
                   void (InputTextStyleFinder::*query)(std::vector<Slice>&) const,
                   std::vector<StringSlice>& ranges) {
    std::vector<Slice> slices;
    (finder.*query)(slices);
    for (const Slice& slice : slices) ranges.emplace_back(slice.from(), slice.to());
}

std::vector<StringSlice> overlay_styles(const InputTextStyleFinder& finder) {
    std::vector<StringSlice> styles;
    append_ranges(finder, &InputTextStyleFinder::bold, styles);
    append_ranges(finder, &InputTextStyleFinder::color, styles);
    append_ranges(finder, &InputTextStyleFinder::italic, styles);
    append_ranges(finder, &InputTextStyleFinder::subscripts, styles);
    append_ranges(finder, &InputTextStyleFinder::superscripts, styles);
    append_ranges(finder, &InputTextStyleFinder::overstrike, styles);
    return styles;
}

/// The styles that show something else in place of the characters, or nothing.
std::vector<StringSlice> replacing_styles(const InputTextStyleFinder& finder) {
    std::vector<StringSlice> styles;
    append_ranges(finder, &InputTextStyleFinder::invisible, styles);
    append_ranges(finder, &InputTextStyleFinder::replacement_text, styles);
    append_ranges(finder, &InputTextStyleFinder::greek, styles);
    return styles;
}

}  // namespace

TextSearchStyleFinder::TextSearchStyleFinder(THandle<TextSearch> search,
                                             THandle<InputTextStyleFinder> finder)
    : search_(std::move(search)), finder_(std::move(finder)) {}

TextSearchStyleFinder::~TextSearchStyleFinder() = default;

void TextSearchStyleFinder::set_search_term(const std::string& term) {
    search_->set_search_term(term);
}

void TextSearchStyleFinder::bold(std::vector<StringSlice>& out) const {
    std::vector<StringSlice> styles;
    finder_->bold(styles);
    StringSliceReducer merged(styles.begin(), styles.end());
    merged.add(matches_.begin(), matches_.end());
    out.insert(out.end(), merged.slices().begin(), merged.slices().end());
}

void TextSearchStyleFinder::italic(std::vector<StringSlice>& out) const { finder_->italic(out); }

void TextSearchStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    finder_->subscripts(out);
}

void TextSearchStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    finder_->superscripts(out);
}

void TextSearchStyleFinder::overstrike(std::vector<StringSlice>& out) const {
    finder_->overstrike(out);
}

void TextSearchStyleFinder::invisible(std::vector<StringSlice>& out) const {
    finder_->invisible(out);
}

void TextSearchStyleFinder::replacement_text(std::vector<ReplacementTextSlice>& out) const {
    finder_->replacement_text(out);
}

void TextSearchStyleFinder::greek(std::vector<GreekSlice>& out) const { finder_->greek(out); }

void TextSearchStyleFinder::color(std::vector<ColorSlice>& out) const {
    finder_->color(out);
    const TextItem::ColorName color = match_exact_ ? TextItem::green4 : TextItem::blue;
    for (const StringSlice& match : matches_) out.emplace_back(match.from(), match.to(), color);
}

void TextSearchStyleFinder::calc_tag_positions() {
    matches_.clear();
    match_exact_ = search_->search(text(), matches_);
    finder_->set_text(text());
    const std::vector<StringSlice> overlay = overlay_styles(*finder_);
    const std::vector<StringSlice> replacing = replacing_styles(*finder_);
    trim(matches_, overlay);
    trim(matches_, replacing);
    const PartMatchesAny hidden(replacing);
    std::erase_if(matches_, [&](const StringSlice& match) { return hidden(match); });
    if (KOVRLog::is_open(debug_level)) {
        KOVRLog::start_debug_line(debug_level)
            << "TextSearchStyleFinder::combined matches: " << VectorOutput(matches_);
        KOVRLog::end_debug_line();
    }
}

StringSlice call_remove_overlap(const StringSlice& match, const StringSlice& style) {
    StringSlice trimmed = match;
    remove_overlap(trimmed, style);
    return trimmed;
}
