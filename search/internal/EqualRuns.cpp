#include "search/internal/EqualRuns.h"

#include <bit>

#include "search/internal/RollingHash.h"

EqualRuns::EqualRuns(std::string_view text, unsigned int length)
    : hashes_(run_hashes(text, length)),
      next_(hashes_.size()),
      chains_(std::bit_ceil(2 * hashes_.size() + 1), no_position) {
    for (unsigned int start = size(); start-- > 0;) {
        unsigned int& chain = chains_[slot_of(hashes_[start])];
        next_[start] = chain;
        chain = start;
    }
}

std::size_t EqualRuns::slot_of(std::uint64_t hash) const {
    auto slot = static_cast<std::size_t>(hash * 0xD6E8FEB86659FD93 >> 32);
    while (true) {
        slot &= chains_.size() - 1;
        if (chains_[slot] == no_position || hashes_[chains_[slot]] == hash) return slot;
        ++slot;
    }
}
