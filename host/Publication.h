#pragma once

#include <string>
#include <vector>

/// The article that describes a structure. Empty texts are not known.
struct Publication {
    /// In the article's order, initials with full stops and then the surname: "A.B.Smith".
    std::vector<std::string> authors;
    /// The journal's name and where the article is in it; the page may be a range: "i124-i126".
    /// @{
    std::string journal, volume, year, page;
    /// @}
};
