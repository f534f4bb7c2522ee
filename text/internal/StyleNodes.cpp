#include "text/internal/StyleNodes.h"

#include <algorithm>

namespace {

constexpr unsigned int block_size = 128;  // positions

const StringSlice nothing(0, 0);

}  // namespace

void StyleNodes::reset(unsigned int text_length) {
    text_length_ = text_length;
    few_.clear();
    empty_ = true;
    waiting_.clear();
}

bool StyleNodes::any_inside(const StringSlice& slice) {
    if (empty_ && waiting_.size() <= most_few) {
        const auto is_inside = [&slice](unsigned int position) {
            return slice.from() < position && position < slice.to();
        };
        const auto has_node_inside = [&is_inside](const StringSlice& style) {
            return is_inside(style.from()) || is_inside(style.to());
        };
        return std::any_of(few_.begin(), few_.end(), has_node_inside) ||
               std::any_of(waiting_.begin(), waiting_.end(), has_node_inside);
    }
    enter_few();
    for (; !waiting_.empty(); waiting_.pop_back()) {
        const StringSlice style = waiting_.back();
        prepare();
        for (const unsigned int position : {style.from(), style.to()}) {
            make_room(position);
            include_node(position, style);
            include_in_hulls(position, style);
        }
    }
    return !hull_inside(slice).empty();
}

bool StyleNodes::crosses_hull(const StringSlice& slice) const {
    const StringSlice hull = hull_inside(slice);
    return !hull.empty() && !slice.has_subset(hull);
}

void StyleNodes::enter_few() {
    for (const StringSlice& style : few_) enter(style);
    few_.clear();
}

void StyleNodes::enter(const StringSlice& style) {
    prepare();
    make_room(style.from());
    make_room(style.to());
    const bool spans_blocks = style.from() / block_size != style.to() / block_size;
    if (!spans_blocks) waiting_.push_back(style);
    for (const unsigned int position : {style.from(), style.to()}) {
        include_node(position, style);
        if (spans_blocks) include_in_hulls(position, style);
    }
}

void StyleNodes::prepare() {
    if (!empty_) return;
    const std::size_t blocks = text_length_ / block_size + 1;
    block_hulls_.assign(2 * blocks, nothing);
    blocks_.resize(blocks);
    for (Block& block : blocks_) block.clear();
    empty_ = false;
}

StringSlice StyleNodes::hull_inside(const StringSlice& slice) const {
    if (empty_ || slice.length() < 2) return nothing;
    const unsigned int first = (slice.from() + 1) / block_size;
    const unsigned int last = (slice.to() - 1) / block_size;
    StringSlice hull = first == last ? nothing : hull_of_blocks(first + 1, last);
    const auto combine_nodes = [&](const Block& block) {
        auto node = std::upper_bound(
            block.begin(), block.end(), slice.from(),
            [](unsigned int wanted, const Node& a) { return wanted < a.position; });
        for (; node != block.end() && node->position < slice.to(); ++node) {
            hull = hull.combine(node->hull);
        }
    };
    combine_nodes(blocks_[first]);
    if (first != last) combine_nodes(blocks_[last]);
    return hull;
}

/// The hull of the blocks [first, last): climbs from both ends, taking the subtrees in between.
StringSlice StyleNodes::hull_of_blocks(unsigned int first, unsigned int last) const {
    StringSlice hull = nothing;
    const auto count = static_cast<unsigned int>(blocks_.size());
    for (first += count, last += count; first < last; first /= 2, last /= 2) {
        if (first % 2 == 1) hull = hull.combine(block_hulls_[first++]);
        if (last % 2 == 1) hull = hull.combine(block_hulls_[--last]);
    }
    return hull;
}

/// Sees to it that the block of `position` can take two more nodes: a style may have both there.
void StyleNodes::make_room(unsigned int position) {
    Block& block = blocks_[position / block_size];
    if (block.capacity() < block.size() + 2) block.reserve(2 * block.size() + 16);
}

void StyleNodes::include_node(unsigned int position, const StringSlice& style) {
    Block& block = blocks_[position / block_size];
    const auto node =
        std::lower_bound(block.begin(), block.end(), position,
                         [](const Node& a, unsigned int wanted) { return a.position < wanted; });
    if (node == block.end() || node->position != position) {
        block.insert(node, {position, style});
    } else {
        node->hull = node->hull.combine(style);
    }
}

void StyleNodes::include_in_hulls(unsigned int position, const StringSlice& style) {
    auto i = static_cast<unsigned int>(blocks_.size()) + position / block_size;
    for (; i > 0 && !block_hulls_[i].has_subset(style); i /= 2) {
        block_hulls_[i] = block_hulls_[i].combine(style);
    }
}
