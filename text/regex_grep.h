#pragma once

#include <string>

#include "host/Regex.h"
#include "host/RegexResults.h"
#include "text/Position.h"

/// Calls process(match) for each match of `regex` in `text`, in order; each search begins at the
/// end of the match before it, or one character further when that was empty. Throws what Regex
/// throws.
template <class Process>
void regex_grep(const Regex& regex, const std::string& text, Process process,
                unsigned int flags = 0) {
    RegexResults match;
    unsigned int position = 0;
    while (position < length_of(text) && regex.search_from_position(text, position, match, flags)) {
        process(match);
        position = match.end() > match.start() ? match.end() : position + 1;
    }
}
