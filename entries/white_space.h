#pragma once

/// Whether CIF has a character between values.
constexpr bool is_white_space(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
