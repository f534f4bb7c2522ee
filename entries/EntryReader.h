#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "entries/CifDocument.h"
#include "entries/CifEntry.h"

/// Reads the entries of a CIF file one after the other, one a data block. What a block lacks stays
/// empty; what cannot be read is among the entry's problems, and the rest of the entry is there.
class EntryReader {
public:
    /// Refers to the bytes, which the caller keeps. Throws CifError.
    explicit EntryReader(std::string_view cif) : document_(cif) {}

    std::size_t size() const { return document_.blocks(); }
    /// `index` is below size().
    CifEntry operator[](std::size_t index) const;

private:
    CifDocument document_;
};
