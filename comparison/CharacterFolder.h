#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "comparison/folding.h"

/// Folds texts character by character, each by itself.
class CharacterFolder {
public:
    /// By byte, what it is folded to; 0 where more must be known.
    using PlainBytes = std::array<char, 256>;

    /// O(1).
    explicit CharacterFolder(const Folding& folding);

    /// Appends the characters at the front of the text that are folded to one byte each, as far as
    /// this is soon told; returns how many these are.
    std::size_t append_plain(std::string_view text, std::string& result) const;
    /// Appends the one at the front of the text, which is not empty, folded; returns its size.
    std::size_t append_character(std::string_view text, std::string& result) const;

private:
    void append_folded(std::u32string_view codes, std::string& result) const;
    void append_mark(char32_t mark, char32_t letter, std::string& result) const;
    void append_base(char32_t code, std::string& result) const;

    Folding folding_;
    const PlainBytes& plain_bytes_;
};
