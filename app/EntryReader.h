#pragma once

#include <functional>
#include <string>
#include <vector>

#include "host/CrystalStructureDatabaseEntry.h"
#include "host/THandle.h"

/// An entry as a data block of a CIF file tells it.
struct CifEntry {
    /// An item that could not be read.
    struct Problem {
        unsigned long line;  // of the file, from 1
        std::string message;
    };

    std::string block;
    THandle<CrystalStructureDatabaseEntry> entry;
    std::vector<Problem> problems;
};

/// Hands over the entries of a CIF file one after the other, one a data block. What a block lacks
/// stays empty; what cannot be read is among its problems, and the rest of the entry is there.
/// Throws InputError and CifError before the first, and what `take` throws.
void for_each_cif_entry(const std::string& path, const std::function<void(CifEntry entry)>& take);
