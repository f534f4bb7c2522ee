#pragma once

#include <string>

/// The name of the target for standard output where none is asked for: on a terminal "ansi", or
/// "unicode" when NO_COLOR is set or the terminal knows no colours; elsewhere `otherwise`.
const char* default_target(const char* otherwise);

/// The name of the target that writes such files, by the ending of the path; elsewhere `otherwise`.
const char* target_of_path(const std::string& path, const char* otherwise);
