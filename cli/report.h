#pragma once

#include <string>
#include <vector>

#include "entries/Problem.h"

/// Writes one line to standard error, with the program's name in front. Control characters and what
/// is not UTF-8 are shown as "?", and what turns the direction of writing by its number:
/// "<U+202E>".
void report(const std::string& message);
/// Likewise, in a sentence: where, what was found and what was expected. Of a run, once.
void report(const Problem& problem);
/// Likewise each of them; returns whether there is no error, for doubts about what was read are
/// none.
bool report(const std::vector<Problem>& problems);
