#include "comparison/EditScript.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

namespace {

using Keys = std::span<const std::uint32_t>;
using Block = EditScript::Block;
using Position = std::ptrdiff_t;

/// Goes from both ends of two sequences at once, by as few steps as possible, until the two ways
/// meet. See E. W. Myers, Algorithmica 1 (1986) 251. Diagonals are the left position less the right
/// one.
class MiddleFinder {
public:
    /// Room for sequences of these lengths.
    MiddleFinder(std::size_t left, std::size_t right, std::size_t effort)
        : effort_(effort), forward_(left + right + 3), backward_(left + right + 3) {}

    struct Point {
        std::size_t left, right;
    };
    /// Where the shortest way from one to the other is about half done; both begin and end with
    /// different keys. None where that costs too much.
    std::optional<Point> find(Keys left, Keys right);

private:
    /// The furthest that a number of steps leads to, on each diagonal of a range.
    struct Front {
        std::vector<Position>& reached;
        Position none;  // on diagonals beside the range
        Position first, last;
    };
    void widen(Front& front) const;
    /// One step further; the position on the left where the fronts met.
    /// @{
    std::optional<Point> advance(Front& front, const Front& other, bool may_meet);
    std::optional<Point> retreat(Front& front, const Front& other, bool may_meet);
    /// @}
    std::size_t at(Position diagonal) const { return static_cast<std::size_t>(diagonal + shift_); }
    bool spend(std::size_t steps) {
        if (effort_ < steps) return false;
        effort_ -= steps;
        return true;
    }

    std::size_t effort_;
    std::vector<Position> forward_, backward_;
    Keys left_, right_;
    Position width_ = 0, height_ = 0, shift_ = 0;
};

std::optional<MiddleFinder::Point> MiddleFinder::find(Keys left, Keys right) {
    left_ = left;
    right_ = right;
    width_ = static_cast<Position>(left.size());
    height_ = static_cast<Position>(right.size());
    shift_ = height_ + 1;
    const Position corner = width_ - height_;
    Front forward{forward_, -1, 0, 0};
    Front backward{backward_, std::numeric_limits<Position>::max(), corner, corner};
    forward_[at(0)] = 0;
    backward_[at(corner)] = width_;
    const bool is_odd = corner % 2 != 0;
    while (true) {
        widen(forward);
        if (!spend(static_cast<std::size_t>(forward.last - forward.first) + 1)) return {};
        if (const auto met = advance(forward, backward, is_odd)) return met;
        widen(backward);
        if (!spend(static_cast<std::size_t>(backward.last - backward.first) + 1)) return {};
        if (const auto met = retreat(backward, forward, !is_odd)) return met;
    }
}

/// By a diagonal on either side, as far as there are any; every second one counts in each turn.
void MiddleFinder::widen(Front& front) const {
    if (front.first > -height_) {
        --front.first;
        front.reached[at(front.first - 1)] = front.none;
    } else {
        ++front.first;
    }
    if (front.last < width_) {
        ++front.last;
        front.reached[at(front.last + 1)] = front.none;
    } else {
        --front.last;
    }
}

std::optional<MiddleFinder::Point> MiddleFinder::advance(Front& front, const Front& other,
                                                         bool may_meet) {
    for (Position k = front.last; k >= front.first; k -= 2) {
        const Position below = front.reached[at(k - 1)], above = front.reached[at(k + 1)];
        Position x = below < above ? above : below + 1;
        const Position from = x;
        while (x < width_ && x - k < height_ &&
               left_[static_cast<std::size_t>(x)] == right_[static_cast<std::size_t>(x - k)]) {
            ++x;
        }
        if (!spend(static_cast<std::size_t>(x - from))) effort_ = 0;
        front.reached[at(k)] = x;
        if (may_meet && other.first <= k && k <= other.last && other.reached[at(k)] <= x) {
            return Point{static_cast<std::size_t>(x), static_cast<std::size_t>(x - k)};
        }
    }
    return {};
}

std::optional<MiddleFinder::Point> MiddleFinder::retreat(Front& front, const Front& other,
                                                         bool may_meet) {
    for (Position k = front.last; k >= front.first; k -= 2) {
        const Position below = front.reached[at(k - 1)], above = front.reached[at(k + 1)];
        Position x = below < above ? below : above - 1;
        const Position from = x;
        while (x > 0 && x - k > 0 &&
               left_[static_cast<std::size_t>(x - 1)] ==
                   right_[static_cast<std::size_t>(x - k - 1)]) {
            --x;
        }
        if (!spend(static_cast<std::size_t>(from - x))) effort_ = 0;
        front.reached[at(k)] = x;
        if (may_meet && other.first <= k && k <= other.last && x <= other.reached[at(k)]) {
            return Point{static_cast<std::size_t>(x), static_cast<std::size_t>(x - k)};
        }
    }
    return {};
}

/// Without what both sides begin and end with.
Block trimmed(Block block, Keys left, Keys right) {
    while (block.left_from < block.left_to && block.right_from < block.right_to &&
           left[block.left_from] == right[block.right_from]) {
        ++block.left_from;
        ++block.right_from;
    }
    while (block.left_from < block.left_to && block.right_from < block.right_to &&
           left[block.left_to - 1] == right[block.right_to - 1]) {
        --block.left_to;
        --block.right_to;
    }
    return block;
}

/// Adds a block, to the last one where nothing stands between.
void add(std::vector<Block>& blocks, const Block& block) {
    const bool touches = !blocks.empty() && blocks.back().left_to == block.left_from &&
                         blocks.back().right_to == block.right_from;
    if (!touches) {
        blocks.push_back(block);
        return;
    }
    Block& last = blocks.back();
    last = {last.left_from, block.left_to, last.right_from, block.right_to,
            last.is_coarse || block.is_coarse};
}

}  // namespace

EditScript::EditScript(Keys left, Keys right, std::size_t effort) {
    // A stack of its own: calls could nest as deep as the texts are long.
    std::vector<Block> open{trimmed({0, left.size(), 0, right.size()}, left, right)};
    MiddleFinder finder(open[0].left_to - open[0].left_from, open[0].right_to - open[0].right_from,
                        effort);
    while (!open.empty()) {
        Block block = trimmed(open.back(), left, right);
        open.pop_back();
        const std::size_t width = block.left_to - block.left_from;
        const std::size_t height = block.right_to - block.right_from;
        if (width == 0 && height == 0) continue;
        if (width > 0 && height > 0) {
            const auto middle = finder.find(left.subspan(block.left_from, width),
                                            right.subspan(block.right_from, height));
            if (middle) {
                const std::size_t x = block.left_from + middle->left;
                const std::size_t y = block.right_from + middle->right;
                open.push_back({x, block.left_to, y, block.right_to});
                open.push_back({block.left_from, x, block.right_from, y});
                continue;
            }
            block.is_coarse = true;
        }
        add(blocks, block);
    }
}
