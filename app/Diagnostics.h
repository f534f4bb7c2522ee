#pragma once

#include <string>

/// Writes one line to standard error, with the program's name in front. Control characters and what
/// is not UTF-8 are shown as "?", and what turns the direction of writing by its number:
/// "<U+202E>".
void report(const std::string& message);
/// Likewise for one text of a file; lines count from 1.
void report(const std::string& file, unsigned long line, const std::string& message);
