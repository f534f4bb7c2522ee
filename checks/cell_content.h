#pragma once

#include <optional>

#include "checks/CheckedEntry.h"
#include "checks/ElementTotals.h"

/// The atoms of a cell, added up from its sites.
struct CellContent {
    ElementTotals atoms;  ///< Each site as often as symmetry repeats it, times its occupancy.
    /// Likewise where the occupancies of special positions are divided by what symmetry leaves out.
    ElementTotals by_site_factors;
    bool has_hydrogen = false;  ///< Some are among them.
};

/// That of an entry; nothing where a site has no type, occupancy or place, or the operations are
/// not known. Types that are not given are told from the labels, with the elements of the formula.
/// O(mn) for m operations and n sites.
std::optional<CellContent> content_of_cell(const CheckedEntry& entry, const ElementTotals& sum);
