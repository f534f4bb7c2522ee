#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "comparison/Finding.h"
#include "text/StringSlice.h"

/// A literature reference as it is shown: "Acta Crystallographica Section C (59, 2003), i136-i138".
/// Parts may lack: "(2001), 12-15", "J (2001)", "J, 12".
struct Reference {
    struct Part {
        Finding::Reason reason;  ///< Why references differ that have another one.
        StringSlice range;       ///< In the text; empty where it lacks.
    };

    /// Journal, volume, year, first page and last page.
    std::array<Part, 5> parts;
};

/// The parts of a text; nothing where it has neither a year or volume in parentheses nor a page.
/// The text is read from the end, as journals have parentheses too. Linear in its length.
std::optional<Reference> read_reference(std::string_view text);
