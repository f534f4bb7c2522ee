#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "entries/CifDocument.h"

/// A text cannot be the value of an item; what() says why.
class UnwritableText : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// Where a value is to stand.
struct ValuePlace {
    bool is_version_2 = false;         ///< In a file of CIF 2.
    std::string_view line_end = "\n";  ///< As the lines of the file end.
    /// In bytes: what stands before it in its line, and what goes on behind it.
    /// @{
    std::size_t before = 0, behind = 0;
    /// @}
};

/// The longest line of a CIF file, in characters.
inline constexpr std::size_t longest_cif_line = 2048;

/// The bytes of a value that CifValue::content() reads as `text`: quoted as `quoting` says where
/// that is possible, else in the simplest way that is: bare, in one kind of quotes or the other, in
/// a text field, and in one of folded lines where a line would be longer than longest_cif_line.
/// A text field begins with a line end unless the place is at the beginning of a line. Lines of the
/// text end with "\n"; "\r\n" and "\r" are taken for that. Throws UnwritableText for characters
/// that no CIF file may hold, for what is not UTF-8, and for lines that begin with ";" where only a
/// text field could hold them. Linear.
std::string written_value(std::string_view text, CifQuoting quoting, const ValuePlace& place);
