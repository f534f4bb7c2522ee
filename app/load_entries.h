#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/EntryReader.h"

/// Hands over the entries of a CIF file one after the other. Reports a file that is not CIF, and
/// the items that cannot be read, those of an entry before it is handed over. Returns whether
/// nothing was reported. Throws what `take` throws.
bool for_each_entry(const std::string& file, const std::function<void(CifEntry entry)>& take);

struct LoadedEntries {
    std::vector<CifEntry> entries;
    bool good;  // nothing was reported
};

/// All entries of a CIF file at once; reports what for_each_entry() reports.
LoadedEntries load_entries(const std::string& file);
