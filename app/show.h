#pragma once

#include <string>
#include <vector>

#include "app/Output.h"
#include "fields/LMRFieldNames.h"

/// What show writes: the targets, and JSON.
std::span<const Output> show_outputs();

struct ShowOptions {
    const Output* to = nullptr;
    std::string path;  // of the file to write, in html5 a page; empty: standard output
    std::vector<LMRFieldNames::TextID> fields;
    std::string term;  // searched in every field in the field's own way; empty: no search
    std::vector<std::string> files;
};

/// Shows the fields of the entries in CIF files, those that have a text. A file, item or field that
/// fails is reported and the others are shown; where no entry could be, a file in the output's
/// place stays. Returns whether nothing was reported. Throws std::system_error when the output
/// cannot be written and InputError when it is one of the inputs.
bool show(const ShowOptions& options);
