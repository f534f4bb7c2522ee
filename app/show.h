#pragma once

#include <string>
#include <vector>

#include "app/Target.h"

struct ShowOptions {
    const Target* to = nullptr;
    std::string page;  // path of the HTML5 page to write; empty: prints to standard output
    std::vector<std::string> files;
};

/// Shows the names and titles of CIF files. A file or field that fails is reported and the others
/// are shown. Returns whether nothing was reported. Throws std::system_error when the output cannot
/// be written.
bool show(const ShowOptions& options);
