#pragma once

#include <stdexcept>
#include <string>
#include <vector>

/// A file is no CIF; what() names file, line and what was wrong.
class CifError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A text of a CIF block that carries the mark-up of CIF texts.
struct CifField {
    std::string label;
    std::string text;    // one line
    unsigned long line;  // where the item stands, from 1
};

/// One data block.
struct CifEntry {
    std::string name;
    std::vector<CifField> fields;  // only those that the block has a value for
};

/// The data blocks of a CIF file; throws InputError and CifError.
std::vector<CifEntry> read_cif_entries(const std::string& path);
