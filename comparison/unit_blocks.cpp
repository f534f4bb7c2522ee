#include "comparison/unit_blocks.h"

#include <algorithm>
#include <map>
#include <optional>

namespace {

using Block = EditScript::Block;
using Blocks = std::vector<Block>;
using Keys = std::vector<std::uint32_t>;

// Some hundredths of a second: an editor waits for it.
constexpr std::size_t most_steps = 4'000'000;

Keys keys_of(const TextUnits& units) {
    Keys keys;
    keys.reserve(units.size());
    for (const TextUnit& unit : units) keys.push_back(unit.key);
    return keys;
}

/// Where the words of a text begin, and its end; what stands between two words is a word too.
std::vector<std::size_t> words_of(const TextUnits& units) {
    std::vector<std::size_t> begins;
    for (std::size_t i = 0; i < units.size(); ++i) {
        const bool goes_on = i > 0 && units[i].is_of_word() && units[i - 1].is_of_word();
        if (!goes_on) begins.push_back(i);
    }
    begins.push_back(units.size());
    return begins;
}

/// The number of each word, by what it is.
class WordKeys {
public:
    Keys of(const Keys& units, const std::vector<std::size_t>& begins) {
        Keys keys;
        for (std::size_t i = 0; i + 1 < begins.size(); ++i) {
            const auto first = units.begin() + static_cast<std::ptrdiff_t>(begins[i]);
            const auto last = units.begin() + static_cast<std::ptrdiff_t>(begins[i + 1]);
            const auto next = static_cast<std::uint32_t>(numbers_.size());
            keys.push_back(numbers_.emplace(Keys(first, last), next).first->second);
        }
        return keys;
    }

private:
    std::map<Keys, std::uint32_t> numbers_;
};

Blocks blocks_of_words(const TextUnits& left, const TextUnits& right, const Keys& left_keys,
                       const Keys& right_keys) {
    const std::vector<std::size_t> left_words = words_of(left), right_words = words_of(right);
    WordKeys numbers;
    const Keys left_numbers = numbers.of(left_keys, left_words);
    const Keys right_numbers = numbers.of(right_keys, right_words);
    Blocks blocks = EditScript(left_numbers, right_numbers, most_steps).blocks;
    for (Block& block : blocks) {
        block = {left_words[block.left_from], left_words[block.left_to],
                 right_words[block.right_from], right_words[block.right_to], true};
    }
    return blocks;
}

std::size_t size_of(const Block& block) {
    return std::max(block.left_to - block.left_from, block.right_to - block.right_from);
}

/// One block for two of one side, where what stands between them can as well stand before or behind
/// both; `from` and `to` are the ends of a block on that side.
std::optional<Block> met(const Keys& keys, std::size_t Block::*from, std::size_t Block::*to,
                         const Block& first, const Block& second) {
    const auto at = [&](std::size_t place) {
        return keys.begin() + static_cast<std::ptrdiff_t>(place);
    };
    const std::size_t between = second.*from - first.*to;
    Block block = first;
    block.*to = second.*to - between;
    if (std::equal(at(first.*to), at(second.*from), at(second.*to - between))) return block;
    block = second;
    block.*from = first.*from + between;
    if (std::equal(at(first.*to), at(second.*from), at(first.*from))) return block;
    return {};
}

/// Replaces neighbours by what `join` makes of them, as far as it makes one block of two.
template <class Join>
Blocks joined(const Blocks& blocks, Join join) {
    Blocks result;
    for (const Block& next : blocks) {
        std::optional<Block> block = next;
        while (!result.empty()) {
            const std::optional<Block> one = join(result.back(), *block);
            if (!one) break;
            block = one;
            result.pop_back();
        }
        result.push_back(*block);
    }
    return result;
}

/// One block for two between which less stands than either has: a reader sees one change there.
std::optional<Block> without_crumbs(const Block& first, const Block& second) {
    const std::size_t between = second.left_from - first.left_to;
    if (between > size_of(first) || between > size_of(second)) return {};
    return Block{first.left_from, second.left_to, first.right_from, second.right_to,
                 first.is_coarse || second.is_coarse};
}

/// How well a block of one side would stand there: 2 where words begin and end.
int fitness(const TextUnits& units, std::size_t from, std::size_t to) {
    const auto is_edge = [&](std::size_t place) {
        if (place == 0 || place == units.size()) return true;
        return !units[place - 1].is_of_word() || !units[place].is_of_word();
    };
    return (is_edge(from) ? 1 : 0) + (is_edge(to) ? 1 : 0);
}

/// Moves what only one side has between its neighbours to where it fits best, at most `before` to
/// the front and `behind` to the end; returns by how much.
std::ptrdiff_t best_shift(const TextUnits& units, std::size_t from, std::size_t to,
                          std::size_t before, std::size_t behind) {
    std::ptrdiff_t best = 0;
    int best_fitness = fitness(units, from, to);
    for (std::size_t i = 1; i <= before && units[from - i].key == units[to - i].key; ++i) {
        const int here = fitness(units, from - i, to - i);
        if (here <= best_fitness) continue;
        best_fitness = here;
        best = -static_cast<std::ptrdiff_t>(i);
    }
    for (std::size_t i = 1; i <= behind && units[from + i - 1].key == units[to + i - 1].key; ++i) {
        const int here = fitness(units, from + i, to + i);
        if (here <= best_fitness) continue;
        best_fitness = here;
        best = static_cast<std::ptrdiff_t>(i);
    }
    return best;
}

/// Shifts the blocks that only one side has.
void shift(Blocks& blocks, const TextUnits& left, const TextUnits& right) {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        Block& block = blocks[i];
        const bool left_is_empty = block.left_from == block.left_to;
        if (!left_is_empty && block.right_from != block.right_to) continue;
        // A unit stays between neighbours.
        const std::size_t before =
            i == 0 ? block.left_from : block.left_from - blocks[i - 1].left_to - 1;
        const std::size_t behind = i + 1 == blocks.size()
                                       ? left.size() - block.left_to
                                       : blocks[i + 1].left_from - block.left_to - 1;
        const std::ptrdiff_t by =
            left_is_empty ? best_shift(right, block.right_from, block.right_to, before, behind)
                          : best_shift(left, block.left_from, block.left_to, before, behind);
        for (std::size_t* place :
             {&block.left_from, &block.left_to, &block.right_from, &block.right_to}) {
            *place = static_cast<std::size_t>(static_cast<std::ptrdiff_t>(*place) + by);
        }
    }
}

}  // namespace

std::vector<EditScript::Block> unit_blocks(const TextUnits& left, const TextUnits& right) {
    const Keys left_keys = keys_of(left), right_keys = keys_of(right);
    Blocks blocks = EditScript(left_keys, right_keys, most_steps).blocks;
    const bool is_coarse = std::any_of(blocks.begin(), blocks.end(),
                                       [](const Block& block) { return block.is_coarse; });
    if (is_coarse) blocks = blocks_of_words(left, right, left_keys, right_keys);
    blocks = joined(blocks, [&](const Block& first, const Block& second) -> std::optional<Block> {
        const auto has_left = [](const Block& block) { return block.left_from < block.left_to; };
        const auto has_right = [](const Block& block) { return block.right_from < block.right_to; };
        if (!has_right(first) && !has_right(second)) {
            return met(left_keys, &Block::left_from, &Block::left_to, first, second);
        }
        if (has_left(first) || has_left(second)) return {};
        return met(right_keys, &Block::right_from, &Block::right_to, first, second);
    });
    blocks = joined(blocks, without_crumbs);
    shift(blocks, left, right);
    return blocks;
}
