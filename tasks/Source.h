#pragma once

#include <span>

#include "finders/InputTextStyleFinder.h"
#include "host/THandle.h"

/// One kind of text that the program reads.
struct Source {
    const char* name;
    const char* help;
    THandle<InputTextStyleFinder> (*make_finder)();
    bool may_lack_letters;  // whether the finder may report Greek letters with no symbol
};

std::span<const Source> sources();
