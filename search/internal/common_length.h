#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "text/Position.h"

/// How many characters two texts have in common from their begin on. Eight at a time: where they
/// part cannot be foreseen, and each wrong guess costs as much as many characters.
inline unsigned int common_length(std::string_view a, std::string_view b) {
    const std::size_t size = std::min(a.size(), b.size());
    std::size_t same = 0;
    for (; size - same >= sizeof(std::uint64_t); same += sizeof(std::uint64_t)) {
        std::uint64_t of_a = 0, of_b = 0;
        std::memcpy(&of_a, a.data() + same, sizeof of_a);
        std::memcpy(&of_b, b.data() + same, sizeof of_b);
        const std::uint64_t apart = of_a ^ of_b;
        if (apart == 0) continue;
        const int bits = std::endian::native == std::endian::little ? std::countr_zero(apart)
                                                                    : std::countl_zero(apart);
        return to_position(same + static_cast<unsigned int>(bits) / 8);
    }
    while (same < size && a[same] == b[same]) ++same;
    return to_position(same);
}
