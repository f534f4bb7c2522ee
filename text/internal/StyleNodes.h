#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "text/StringSlice.h"

/// The nodes of a text's styles: the positions at which a style that is not empty begins or ends.
///
/// A slice [f, t) crosses some style exactly when the hull of all styles that have a node between f
/// and t reaches beyond f or t. The nodes stand in blocks of neighbouring positions under a binary
/// tree of hulls, so that adding and asking are O(log n) for n positions, once the first addition
/// to a text has laid them out in O(n). A few styles are not worth that: they are asked one by one.
class StyleNodes {
public:
    /// Forgets all styles, for a text of that length. Keeps the memory for the next ones.
    void reset(unsigned int text_length);

    /// Whether some style has a node between the ends of `slice`, the ends themselves left out.
    /// O(log n) for each style added since it was asked last, besides.
    bool any_inside(const StringSlice& slice);
    /// Whether `slice` and some style have a partial intersection. Like add(), for slices within
    /// the text only.
    bool crosses(const StringSlice& slice) const {
        return slice.length() > 1 && (crosses_few(slice) || (!empty_ && crosses_hull(slice)));
    }

    /// Adds the nodes of one style; leaves everything as it was when memory runs out.
    void add(const StringSlice& style) {
        if (style.length() > 1) {
            if (few_.size() == most_few) enter_few();
            few_.push_back(style);
        } else if (!style.empty()) {
            waiting_.push_back(style);
        }
    }

private:
    struct Node {
        unsigned int position;
        StringSlice hull;  // of all styles that begin or end here
    };
    using Block = std::vector<Node>;  // one node a position, ascending

    static constexpr std::size_t most_few = 16;

    bool crosses_few(const StringSlice& slice) const {
        return std::any_of(few_.begin(), few_.end(), [&slice](const StringSlice& style) {
            return style.from() < slice.from()
                       ? slice.from() < style.to() && style.to() < slice.to()
                       : slice.from() < style.from() && style.from() < slice.to() &&
                             slice.to() < style.to();
        });
    }
    bool crosses_hull(const StringSlice& slice) const;
    void enter_few();
    void enter(const StringSlice& style);
    void prepare();
    StringSlice hull_inside(const StringSlice& slice) const;
    StringSlice hull_of_blocks(unsigned int first, unsigned int last) const;
    void make_room(unsigned int position);
    void include_node(unsigned int position, const StringSlice& style);
    void include_in_hulls(unsigned int position, const StringSlice& style);

    unsigned int text_length_ = 0;
    std::vector<StringSlice> few_;  // styles of some characters that stand nowhere below
    bool empty_ = true;  // no style was entered yet, and what stands below counts for nothing
    // Styles not entered below, or not in the hulls. One of a single character crosses no style,
    // and one within a block crosses none that spans the block: they are entered when a question
    // reaches inside it.
    std::vector<StringSlice> waiting_;
    std::vector<Block> blocks_;
    std::vector<StringSlice> block_hulls_;  // of block b at blocks + b, of nodes 2i and 2i + 1 at i
};
