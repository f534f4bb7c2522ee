#pragma once

#include <cstddef>
#include <cstdint>

// Where the styles of a text begin, as numbers that sort in the order in which a generator asks for
// them.

namespace style_starts {

// The lists of a text's styles, in the order in which they are asked at one position.
enum : unsigned int { tag_list, invisible_list, replacement_list, greek_list, lists };

inline constexpr unsigned int index_bits = 30;
inline constexpr std::size_t most_styles = std::size_t{1} << index_bits;  // in a list

/// Orders the beginnings of styles by position, list and index in the list.
constexpr std::uint64_t start_key(unsigned int position, unsigned int list, unsigned int index) {
    return (std::uint64_t{position} * lists + list) << index_bits | index;
}

constexpr unsigned int position_of(std::uint64_t start_key) {
    return static_cast<unsigned int>((start_key >> index_bits) / lists);
}

constexpr unsigned int list_of(std::uint64_t start_key) {
    return static_cast<unsigned int>(start_key >> index_bits) % lists;
}

constexpr unsigned int index_of(std::uint64_t start_key) {
    return static_cast<unsigned int>(start_key & (most_styles - 1));
}

}  // namespace style_starts
