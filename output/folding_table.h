#pragma once

#include <string>

/// What characters are folded to, as an object of JSON for scripts: of each result the characters
/// that have it. Of alphabets, signs and forms of letters, but not of marks, which are folded with
/// what they stand on.
std::string folding_table();
