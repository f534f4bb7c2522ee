#pragma once

#include <string>

#include "host/Regex.h"
#include "host/RegexResults.h"
#include "text/Position.h"
#include "text/StringSlice.h"

/// Calls process(slice) for each match of `regex` in `text`, in order; each search begins at the
/// end of the match before it, or one character further when that was empty. `match` is scratch,
/// which callers keep from one call to the next. Throws what Regex throws,
/// and std::length_error for a text of more than 4294967294 characters.
template <class Process>
void regex_grep(const Regex& regex, const std::string& text, RegexResults& match, Process process,
                unsigned int flags = 0) {
    const unsigned int length = length_of(text);
    unsigned int position = 0;
    while (position < length && regex.search_from_position(text, position, match, flags)) {
        const StringSlice slice(match.start(), match.end());
        process(slice);
        position = slice.empty() ? position + 1 : slice.to();
    }
}
