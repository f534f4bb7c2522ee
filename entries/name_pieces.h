#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Persons' names, cut for the reader to tell what each piece is.

/// A word, or the part of one up to a dot.
struct NamePiece {
    std::string_view text;  ///< Without the dot; not empty.
    bool has_dot;           ///< Behind it.
    bool is_glued;          ///< To the dot before it.
};
using NamePieces = std::vector<NamePiece>;

/// The name with single blanks, none of them at hyphens or before dots and commas, and without
/// footnote marks; nothing where it has characters that names have not.
std::optional<std::string> plain_name(std::string_view as_written);
/// The pieces of a text, to which they refer.
NamePieces split_name(std::string_view text);
/// The text from the first of the pieces [from, to) to the last.
std::string_view text_of(const NamePieces& pieces, std::size_t from, std::size_t to);
