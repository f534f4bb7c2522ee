#pragma once

#include <string>
#include <vector>

#include "host/DatabaseCrossReference.h"

/// Where else an entry's structure is found.
struct CrossReferenceInfo {
    std::vector<DatabaseCrossReference> references;
    std::string msdbbib;
};
