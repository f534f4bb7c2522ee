#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "entries/Problem.h"
#include "finders/InputTextStyleFinder.h"
#include "host/THandle.h"

/// One kind of text that the program reads.
struct Source {
    const char* name;
    const char* help;
    THandle<InputTextStyleFinder> (*make_finder)();
    /// Appends the doubts of its finder about the finder's text; null: it has none.
    void (*note_doubts)(const InputTextStyleFinder& finder, std::vector<Problem>& problems);
    bool is_coded;  ///< Whether a reader sees much else than stands in the text: it is searched as
                    ///< it is shown.
    /// What may be shown else than it stands in a text: ones in formulae and labels of cells aside.
    enum class Codes {
        none,     ///< Nothing.
        marks,    ///< Marks of styles, and tags between < and >; letters and digits are shown as
                  ///< they stand, but names of Greek letters may be shown as these.
        letters,  ///< Letters too.
    };
    Codes (*codes_in)(std::string_view text);
};

std::span<const Source> sources();
