#pragma once

#include <string>
#include <string_view>

/// A text of a field that says more than the entry's records hold: as the file has it, with its
/// codes, or of a field beyond the catalogue.
struct EntryText {
    std::string_view label;   ///< Of the field.
    std::string_view source;  ///< The name of the kind of text: "cif-text".
    std::string text;
};
