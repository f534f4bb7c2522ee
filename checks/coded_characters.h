#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Codes of ASCII for a character in UTF-8 or a reference to one, "&alpha;"; none where there are
/// none but the reference itself.
std::optional<std::string> in_ascii(std::string_view character);

/// A text of CIF files, in UTF-8, with each character beyond ASCII in codes; none where one has
/// none, or the text would say something else.
std::optional<std::string> text_in_ascii(std::string_view text);

/// Whether two texts of CIF files say the same.
bool say_the_same(std::string_view a, std::string_view b);
