#pragma once

#include <cstddef>
#include <string>

/// How many there are.
extern const std::size_t hostile_cifs;

/// CIF files that are as they should be and still trap who edits them by lines or by guesses;
/// `number` is below hostile_cifs. Always the same.
std::string hostile_cif(std::size_t number);
