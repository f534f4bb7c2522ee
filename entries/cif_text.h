#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/Date.h"
#include "host/UncertainValue.h"

// Readers of the texts and values of CIF files.

/// The bytes of a file behind the byte order mark that some editors write.
std::string_view without_byte_order_mark(std::string_view bytes);

/// The text with lines that end with "\n", whatever ends those of the file: "\r\n", "\r" or that.
std::string with_plain_line_ends(std::string_view text);

/// In lower case, as far as ASCII goes; the case of tags does not count.
std::string in_lower_case(std::string_view text);

/// The lines of a text field as one line, with one blank between them, but none behind a hyphen
/// that ends a word, and in names none before a hyphen either: they are broken there. A field whose
/// first line is a lone backslash has folded lines: each that ends with a backslash goes on in the
/// next.
std::string one_line(std::string_view text, bool is_name = false);

/// A number with or without its standard uncertainty, such as "10.234(5)" or "1.2e3".
std::optional<UncertainValue> read_number(std::string_view text);

/// A day such as "2004-07-09", "9-Jul-2004" or "Tue Jul 9 2004", with or without the time of the
/// day, as in "2004-07-09T16:19:55". None where day and month can be told apart by neither their
/// order nor their numbers: "9/7/2004".
std::optional<Date> read_date(std::string_view text);
