#pragma once

#include <span>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"

/// One kind of mark-up that the library writes, as programs offer it to their users.
struct RichTextTarget {
    const char* name;    ///< One word, in lower case.
    const char* ending;  ///< Of files, without a dot.
    const char* help;    ///< One line, without a full stop.
    bool escapes;        ///< Whether texts without styles must go through the generator too.
    /// Makes a new generator, for one thread.
    THandle<RichTextGenerator> (*make_generator)();
};

/// All targets: first the four of the database and its old displays, then those for others'
/// programs. The list lives as long as the program.
std::span<const RichTextTarget> rich_text_targets();
