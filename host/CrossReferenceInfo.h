#pragma once

#include <string>
#include <vector>

#include "host/DatabaseCrossReference.h"

/// Where else an entry's structure is found.
struct CrossReferenceInfo {
    std::vector<DatabaseCrossReference> references;  ///< In the order in which they are shown.
    std::string msdbbib;  ///< The text of the field MSDBBIB, shown as it stands; empty: none.
};
