#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

// What the words of persons' names are, in UTF-8. Case is that of Latin, Greek and Cyrillic
// letters.

/// The capital of a letter; the letter itself where it has none.
char32_t capital(char32_t letter);
/// Whether its first letter is a small one.
bool is_small(std::string_view word);
/// Whether it has two letters or more, and all are capitals.
bool is_in_capitals(std::string_view word);
/// The number of its characters, each with its accents.
std::size_t characters_of(std::string_view word);

/// "Jr", "Sr", "II", "III" or "IV", where the word is a spelling of one.
std::optional<std::string_view> name_suffix(std::string_view word);
/// Whether surnames begin with the word: "von", "De".
bool is_particle(std::string_view word);
/// Whether the word, such as "and", is of a group's name or a list of names.
bool is_of_no_person(std::string_view word);
/// Whether it stands for a given name: "X", "X-L", "Ph", "Yu" with a dot behind.
bool stands_for_name(std::string_view word, bool has_dot);
