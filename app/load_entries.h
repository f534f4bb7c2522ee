#pragma once

#include "app/EntryReader.h"

struct LoadedEntries {
    std::vector<CifEntry> entries;
    bool good;  // nothing was reported
};

/// The entries of a CIF file. Reports a file that is not CIF, and the items that cannot be read.
LoadedEntries load_entries(const std::string& file);
