#pragma once

#include <string>
#include <string_view>

/// The elements of a formula and how often they are there, in one order: "C 6 H 12 O 1". Charges
/// are left out. Empty where the formula is none, or has brackets or factors in it.
std::string composition_of(std::string_view formula);
