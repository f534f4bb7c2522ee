#pragma once

#include <string>
#include <vector>

#include "entries/CifDocument.h"
#include "entries/EntryText.h"
#include "entries/Problem.h"
#include "host/CrystalStructureDatabaseEntry.h"
#include "host/THandle.h"

/// An entry as a data block of a CIF file tells it.
struct CifEntry {
    CifBlock block;  ///< Where its values stand; its document must live on.
    THandle<CrystalStructureDatabaseEntry> entry;
    std::vector<EntryText> texts;   ///< The fields of which more is known than `entry` holds.
    std::vector<Problem> problems;  ///< What could not be read, and doubts, line by line.

    /// The text of that field among `texts`, or null.
    const EntryText* text(std::string_view label) const;
};
