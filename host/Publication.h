#pragma once

#include <string>
#include <vector>

/// The article that describes a structure.
struct Publication {
    std::vector<std::string> authors;  // initials with full stops, then the surname: "A.B.Smith"
    std::string journal, volume, year, page;
};
