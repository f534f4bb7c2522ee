#pragma once

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

/// A file is not a CIF file; what() names it, the line and what was wrong.
class CifError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One value of an item; empty for "?" and ".". Lines count from 1.
struct CifValue {
    std::string text;
    unsigned long line;
};

/// One data block: the values of its items by tag, a value a row for the items of loops.
struct CifBlock {
    /// An item that the block has already, which CIF forbids.
    struct Repetition {
        std::string tag;
        unsigned long line;
    };

    std::string name;
    std::map<std::string, std::vector<CifValue>> items;
    std::vector<Repetition> repetitions;  // their values are left out
};

/// Hands over the data blocks of a CIF file one after the other, with those of their items that are
/// named in `tags`; a tag that ends in "_" names all items that are not in loops and begin with it.
/// Throws InputError and CifError before the first block, a file that does not begin as a CIF file
/// does without reading the rest of it, and what `take` throws.
void for_each_cif_block(const std::string& path, const std::vector<std::string>& tags,
                        const std::function<void(const CifBlock& block)>& take);
