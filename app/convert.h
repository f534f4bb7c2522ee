#pragma once

#include <string>
#include <vector>

#include "app/Source.h"
#include "app/Target.h"

struct ConvertOptions {
    const Source* from = nullptr;
    const Target* to = nullptr;
    unsigned int line_length = 0;  // in characters; 0 breaks no lines
    char separator = '\n';         // ends each text, read or written
    std::vector<std::string> files;
};

/// Converts text by text in constant memory. A text that fails is reported and leaves an empty text
/// in its place. Returns the exit status: 0, or 1 when anything was reported as failed. Throws
/// std::system_error when the output cannot be written.
int convert(const ConvertOptions& options);
