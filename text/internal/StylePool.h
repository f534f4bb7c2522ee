#pragma once

#include <array>
#include <cstddef>
#include <new>

#include "host/THandle.h"
#include "text/TextItemStyle.h"

/// Makes the styles of a text side by side, some at a time in one allocation, which lives until the
/// last handle to one of them. For styles that are small and whose destructors do nothing: none is
/// called. A copy makes styles of its own.
class StylePool {
public:
    StylePool() = default;
    StylePool(const StylePool& /*other*/) noexcept {}
    StylePool& operator=(const StylePool&) = delete;
    ~StylePool() = default;

    /// A handle to a new Style on [from, to).
    template <class Style, class... Payload>
    THandle<Style> make(unsigned int from, unsigned int to, const Payload&... payload) {
        static_assert(sizeof(Style) <= sizeof(Slot));
        static_assert(alignof(Style) <= alignof(Slot));
        if (used_ == slots) {
            block_ = make_handle<Block>();
            used_ = 0;
        }
        auto* const style = new ((*block_)[used_].bytes) Style(payload...);
        style->activate(from, to);
        ++used_;
        return make_part_handle(block_, style);
    }

    /// Leaves the styles made so far to their handles.
    void reset() {
        block_ = nullptr;
        used_ = slots;
    }

private:
    static constexpr std::size_t slots = 8;  // more than most texts have styles

    struct Slot {
        alignas(TextItemStyle) std::byte bytes[sizeof(TextItemStyle) + sizeof(void*)];
    };
    using Block = std::array<Slot, slots>;

    THandle<Block> block_;
    std::size_t used_ = slots;  // of the block
};
