#include "text/StyleNodes.h"

#include <algorithm>

namespace {

constexpr unsigned int block_size = 128;  // positions

const StringSlice nothing(0, 0);

}  // namespace

void StyleNodes::reset(unsigned int text_length) {
    text_length_ = text_length;
    empty_ = true;
    single_characters_.clear();
}

bool StyleNodes::any_inside(const StringSlice& slice) {
    for (; !single_characters_.empty(); single_characters_.pop_back()) {
        insert(single_characters_.back());
    }
    return !hull_inside(slice).empty();
}

bool StyleNodes::crosses(const StringSlice& slice) const {
    const StringSlice hull = hull_inside(slice);
    return !hull.empty() && !slice.has_subset(hull);
}

void StyleNodes::add(const StringSlice& style) {
    if (style.length() == 1) {
        single_characters_.push_back(style);
    } else if (!style.empty()) {
        insert(style);
    }
}

void StyleNodes::insert(const StringSlice& style) {
    if (empty_) {
        const std::size_t blocks = text_length_ / block_size + 1;
        block_hulls_.assign(2 * blocks, nothing);
        blocks_.resize(blocks);
        for (Block& block : blocks_) block.clear();
        empty_ = false;
    }
    make_room(style.from());
    make_room(style.to());
    include(style.from(), style);
    include(style.to(), style);
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

void StyleNodes::include(unsigned int position, const StringSlice& style) {
    Block& block = blocks_[position / block_size];
    const auto node =
        std::lower_bound(block.begin(), block.end(), position,
                         [](const Node& a, unsigned int wanted) { return a.position < wanted; });
    if (node == block.end() || node->position != position) {
        block.insert(node, {position, style});
    } else {
        node->hull = node->hull.combine(style);
    }
    auto i = static_cast<unsigned int>(blocks_.size()) + position / block_size;
    for (; i > 0 && !block_hulls_[i].has_subset(style); i /= 2) {
        block_hulls_[i] = block_hulls_[i].combine(style);
    }
}
