#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The known tag that one is meant to be which differs from it by one letter that was added, left
/// out, changed or exchanged with its neighbour; none for a known tag, nor where the letter makes a
/// number, a short word or a plural another. The other letters keep their case.
std::optional<std::string> known_tag_for(std::string_view tag);
