#pragma once

#include <span>

#include "host/THandle.h"
#include "markup/RichTextGenerator.h"

/// One kind of mark-up that the program writes.
struct Target {
    const char* name;
    const char* help;
    THandle<RichTextGenerator> (*make_generator)();
    bool shows_color;
};

std::span<const Target> targets();
