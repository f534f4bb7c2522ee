#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

/// A Latin letter in the name of a compound that seems to stand for a Greek one.
struct LatinForGreek {
    std::size_t at;    ///< Where the letter stands.
    const char* code;  ///< Of the letter that may be meant: "\\m".
};

/// The first one: the "m" of "m-dppm" and of "m~2~-oxo", the "h" of "h^5^-cyclopentadienyl".
std::optional<LatinForGreek> latin_for_greek(std::string_view name);
