#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "tasks/EntryTexts.h"

/// By what two entries are taken for the same one.
enum class PairingReason {
    named,             ///< Users named both.
    identifier,        ///< The database's number, or else the block's name in the same file.
    block,             ///< The same, where one side alone has a number.
    cell_and_formula,  ///< The same composition in a reduced cell that is nearly the same.
    name,              ///< The name of the compound.
    only,              ///< There is one on either side.
};

/// What is said of it: one word with hyphens, and a clause: "same identifier".
/// @{
const char* name_of(PairingReason reason);
const char* clause_of(PairingReason reason);
/// @}

/// Two entries that shall be compared.
struct EntryPair {
    EntryTexts left, right;
    PairingReason reason;
};

/// Finds for each entry of one side the one of the other side that it is to be compared with. Both
/// sides are read in turn; what waits for another, and nothing else, is held.
class EntryPairing {
public:
    enum Side { left, right };

    /// The next entry of a side. Where one of the other side with the same identifier waits, the
    /// first such, it is given back with that one, else it waits. `file` tells blocks of one name
    /// apart: the file's name in its folder, empty when either side is a single file. O(log n) for
    /// n that wait.
    std::optional<EntryPair> add(Side side, EntryTexts entry, const std::string& file = "");

    /// What waited to the end, in the order in which it came, pairs in that of the left sides.
    struct Rest {
        std::vector<EntryPair> pairs;
        std::vector<EntryTexts> only_left, only_right;
    };
    /// Pairs what waits by cell and formula, the nearest first, then by name. Edges and angles may
    /// differ by 1 % each; of many entries of one composition those with nearly the same first
    /// edge are looked at, at most 100 for each. O(n log n).
    Rest finish();

private:
    struct Waiting {
        EntryTexts entry;
        std::string block;  // the name of the block with that of the file
    };
    using Places = std::vector<unsigned long>;  // of entries in their side
    struct Found {
        unsigned long left, right;
        PairingReason reason;
    };

    template <class LeftKey, class RightKey>
    void pair_by(LeftKey left_key, RightKey right_key, PairingReason reason);
    void pair_by_cells();
    void pair_near_cells(const Places& lefts, const Places& rights);
    void note(unsigned long left_place, unsigned long right_place, PairingReason reason);
    EntryTexts take(Side side, unsigned long place);

    unsigned long count_[2] = {0, 0};
    std::map<unsigned long, Waiting> waiting_[2];
    std::unordered_map<std::string, std::deque<unsigned long>> by_identifier_[2];
    std::vector<Found> found_;
    std::vector<bool> is_found_[2];  // by place
};
