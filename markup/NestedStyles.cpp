#include "markup/NestedStyles.h"

#include <algorithm>
#include <queue>
#include <tuple>
#include <utility>

#include "text/TextItemStyle.h"

namespace {

/// A part of a style's slice with the style's tags.
class StylePiece : public TextItemStyle {
public:
    explicit StylePiece(THandle<TextItemStyle> whole) : whole_(std::move(whole)) {}

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

/// What is left of the style that stands at `index` of the list.
struct Remainder {
    unsigned int from;
    unsigned int to;
    std::size_t index;

    /// Whether the other one is to be opened first.
    bool operator<(const Remainder& other) const {
        return std::tie(from, other.to, index) > std::tie(other.from, to, other.index);
    }
};

THandle<TextItemStyle> cut(const THandle<TextItemStyle>& style, unsigned int from,
                           unsigned int to) {
    if (style->from() == from && style->to() == to) return style;
    const auto piece = make_handle<StylePiece>(style);
    piece->activate(from, to);
    return piece;
}

}  // namespace

NestedStyles::NestedStyles(const RichTextData::Styles& styles, unsigned int text_length) {
    std::priority_queue<Remainder> waiting;
    for (std::size_t i = 0; i < styles.size(); ++i) {
        const unsigned int to = std::min(styles[i]->to(), text_length);
        if (styles[i]->from() < to) waiting.push({styles[i]->from(), to, i});
    }
    std::vector<unsigned int> open_ends;  // of the pieces around the next one, the innermost last
    while (!waiting.empty()) {
        const Remainder next = waiting.top();
        waiting.pop();
        while (!open_ends.empty() && open_ends.back() <= next.from) open_ends.pop_back();
        const unsigned int to = open_ends.empty() ? next.to : std::min(next.to, open_ends.back());
        pieces_.push_back(cut(styles[next.index], next.from, to));
        open_ends.push_back(to);
        if (to < next.to) waiting.push({to, next.to, next.index});
    }
}
