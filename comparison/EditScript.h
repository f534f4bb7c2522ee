#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// What makes one sequence of keys of another.
struct EditScript {
    /// A run of either side that is not in the other; the keys between two blocks are the same.
    struct Block {
        std::size_t left_from, left_to, right_from, right_to;
        bool is_coarse = false;  ///< Less may differ.

        friend bool operator==(const Block&, const Block&) = default;
    };

    /// Finds as few keys as possible to leave out and to add. What would cost more than `effort`
    /// comparisons becomes one coarse block. O(n + m) beside these, for n and m keys.
    EditScript(std::span<const std::uint32_t> left, std::span<const std::uint32_t> right,
               std::size_t effort);

    std::vector<Block> blocks;  ///< Ascending; at least one key stands between two.
};
