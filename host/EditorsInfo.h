#pragma once

#include <string>

#include "host/Date.h"

/// What the editors of the database note of an entry.
struct EditorsInfo {
    /// When the entry came in, and when it was changed last; null where that is not known.
    /// @{
    Date accession_date, modification_date;
    /// @}
    /// Shown as they stand, each in the field of its name; empty: nothing noted.
    /// @{
    std::string category, bonding_tolerance, previous_refcode, tevo_match_flag,
        connectivity_comment, batch, memo, remarks, author_correspondence, ignored_errors;
    /// @}
};
