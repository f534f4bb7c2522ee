#pragma once

#include <string>
#include <string_view>

// Texts in UTF-8 said in ASCII alone. Bytes that are not UTF-8 count as U+FFFD.

/// With what comes nearest in place of each character: "e" for é, "-" for a dash, "x" for ×, the
/// names of Greek letters, "?" where nothing does.
std::string folded_to_ascii(std::string_view text);

/// With a reference for each character, "&#xE9;".
std::string with_references(std::string_view text);

/// The first character that is beyond ASCII, or nothing.
std::string_view first_beyond_ascii(std::string_view text);
