#pragma once

#include <string>

/// Writes one line to standard error, with the program's name in front; characters that could
/// control a terminal are shown as "?".
void report(const std::string& message);
/// Likewise for one text of a file; lines count from 1.
void report(const std::string& file, unsigned long line, const std::string& message);
