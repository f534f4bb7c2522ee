#pragma once

#include <span>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"

/// One kind of mark-up that the library writes, as programs offer it to their users.
struct RichTextTarget {
    const char* name;    // one word, in lower case
    const char* ending;  // of files, without a dot
    const char* help;    // one line
    bool escapes;        // texts without styles must go through the generator too
    THandle<RichTextGenerator> (*make_generator)();
};

/// All targets: first the four of the database and its old displays, then those for others'
/// programs.
std::span<const RichTextTarget> rich_text_targets();
