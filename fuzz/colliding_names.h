#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

/// `count` different names to which the standard library's hash of strings gives one and the same
/// value, made for its 64-bit form (MurmurHash64A): changes of two blocks of eight bytes that undo
/// each other, whatever the seed. They hold no separator and no control of names, lines or CIF
/// values.
inline std::vector<std::string> colliding_names(std::size_t count) {
    constexpr std::uint64_t factor = 0xC6A4A7935BD1E995, top_bit = std::uint64_t(1) << 63;
    std::uint64_t inverse =
        factor;  // Newton's iteration: each step doubles the bits that are right
    for (int step = 0; step < 6; ++step) inverse *= 2 - factor * inverse;
    const auto mixed = [=](std::uint64_t block) {
        block *= factor;
        return (block ^ block >> 47) * factor;
    };
    const auto unmixed = [=](std::uint64_t block) {
        block *= inverse;
        return (block ^ block >> 47) * inverse;
    };
    const auto bytes = [](std::uint64_t block) {
        return std::string(std::bit_cast<const char*>(&block), sizeof block);
    };
    const auto usable = [](const std::string& block) {
        const auto separates = [](unsigned char c) { return c <= ' ' || c == 0x7F; };
        return block.find_first_of(",.-;'\"\\") == std::string::npos &&
               std::none_of(block.begin(), block.end(), separates);
    };
    // A block and the other whose mixed value differs from the first one's in the top bit alone.
    std::string block, other;
    for (std::uint64_t n = 0x4142434445464748; other.empty() || !usable(block + other); ++n) {
        block = bytes(n);
        other = bytes(unmixed(mixed(n) ^ top_bit));
    }
    std::vector<std::string> names;
    const auto pairs = static_cast<unsigned int>(std::bit_width(count));
    for (std::size_t n = 0; n < count; ++n) {
        std::string name;
        for (unsigned int pair = 0; pair < pairs; ++pair) {
            const std::string& chosen = (n >> pair & 1) != 0 ? other : block;
            name += chosen + chosen;
        }
        names.push_back(name);
    }
    return names;
}
