#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Bytes as their reader sees them: those that are not UTF-8 by their numbers, "<E9>", and what
/// acts where it is shown likewise, "<U+0007>"; line ends stay.
std::string shown_bytes(std::string_view bytes);

/// The same on one line and cut to `most` characters, with "..." where more is left.
std::string shown_in_line(std::string_view bytes, std::size_t most = 60);
