#pragma once

#include <span>
#include <string_view>

/// The one of `known` that a misspelt word is most likely meant to be, or an empty one where none
/// is near: of at most a third as many letters added, left out, changed or exchanged with their
/// neighbour as the word has. The case of letters does not count. O(n m) for n characters of the
/// word and m of all that are about as long.
std::string_view nearest_word(std::string_view word, std::span<const std::string_view> known);
