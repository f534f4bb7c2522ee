#pragma once

#include <string>

#include "host/Date.h"

/// What the editors of the database note of an entry.
struct EditorsInfo {
    Date accession_date, modification_date;
    std::string category, bonding_tolerance, previous_refcode, tevo_match_flag,
        connectivity_comment, batch, memo, remarks, author_correspondence, ignored_errors;
};
