#pragma once

#include "app/Source.h"
#include "app/TextBatch.h"
#include "markup/RichTextTarget.h"

struct ConvertOptions {
    const Source* from = nullptr;
    const RichTextTarget* to = nullptr;
    unsigned int line_length = 0;  // in characters; 0 breaks no lines
    TextBatch batch;
};

/// Converts text by text. One that fails is reported and leaves an empty text in its place. Returns
/// whether none did. Throws std::system_error when the output cannot be written.
bool convert(const ConvertOptions& options);
