#include "text/StyleNodes.h"

#include <algorithm>

namespace {

constexpr unsigned int block_size = 128;  // positions; searched node by node

const StringSlice nothing(0, 0);

}  // namespace

bool StyleNodes::crosses(const StringSlice& slice) const {
    const StringSlice hull = hull_inside(slice);
    return !hull.empty() && !slice.has_subset(hull);
}

void StyleNodes::add(const StringSlice& style) {
    if (style.empty()) return;
    if (blocks_.empty()) {
        const std::size_t blocks = text_length_ / block_size + 1;
        block_hulls_.assign(2 * blocks, nothing);
        blocks_.resize(blocks);
    }
    make_room(style.from());
    make_room(style.to());
    include(style.from(), style);
    include(style.to(), style);
}

StringSlice StyleNodes::hull_inside(const StringSlice& slice) const {
    if (blocks_.empty() || slice.length() < 2) return nothing;
    const unsigned int first = (slice.from() + 1) / block_size;
    const unsigned int last = (slice.to() - 1) / block_size;
    StringSlice hull = first == last ? nothing : hull_of_blocks(first + 1, last);
    const auto combine_nodes = [&](const Block& block) {
        for (const Node& node : block) {
            if (slice.from() < node.position && node.position < slice.to()) {
                hull = hull.combine(node.hull);
            }
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

void StyleNodes::include(unsigned int position, const StringSlice& style) {
    Block& block = blocks_[position / block_size];
    const auto node = std::find_if(block.begin(), block.end(),
                                   [&](const Node& n) { return n.position == position; });
    if (node == block.end()) {
        block.push_back({position, style});
    } else {
        node->hull = node->hull.combine(style);
    }
    auto i = static_cast<unsigned int>(blocks_.size()) + position / block_size;
    for (; i > 0 && !block_hulls_[i].has_subset(style); i /= 2) {
        block_hulls_[i] = block_hulls_[i].combine(style);
    }
}
