#pragma once

#include <string_view>

/// Whether a text is a chemical formula as CIF files write it: "C18 H18 N4 2+, 2(B F4 1-)",
/// "Na1.7 (P O2)4", "(C2 H4)n", "CuSO4.5H2O": of elements, numbers, brackets that have partners,
/// and what stands between units and for unknown numbers. D is hydrogen too.
bool is_formula(std::string_view text);
