#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "entries/CifDocument.h"
#include "entries/CifEntry.h"

/// Reads the entries of a CIF file one after the other, one a data block. What a block lacks stays
/// empty; what cannot be read is among the entry's problems, and the rest of the entry is there.
///
/// Where some blocks have cells or atoms, those that have neither but persons or a journal, and
/// nothing of a structure unless they are called "global", are no entries: they say what the blocks
/// behind them have in common, up to the next such blocks, and those at the end of a file without
/// others what all have in common.
class EntryReader {
public:
    /// Refers to the bytes, which the caller keeps. Throws CifError.
    explicit EntryReader(std::string_view cif);

    /// How many entries there are.
    std::size_t size() const { return entries_.size(); }
    /// `index` is below size().
    CifEntry operator[](std::size_t index) const;

    const CifDocument& document() const { return document_; }
    /// The block of entry `index`, and what it has in common with others, or null.
    /// @{
    std::size_t block_of(std::size_t index) const { return entries_[index].block; }
    const CifBlock* common_block_of(std::size_t index) const;
    /// @}

private:
    /// Blocks that stand together, from the first to one past the last.
    struct Common {
        std::size_t first, last;
        CifBlock block;  // all in one
    };
    /// An entry's own block.
    struct Place {
        std::size_t block;
        std::size_t common;            // among common_, or one past them
        bool tells_of_common = false;  // only the first entry repeats what is wrong there
    };

    void find_entries();

    CifDocument document_;
    std::vector<Common> common_;
    std::vector<Place> entries_;
};
