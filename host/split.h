#pragma once

#include <string>
#include <vector>

#include "host/StringFunctionParameters.h"

/// Cuts `text` at every occurrence of `separator` and returns the pieces in order. With
/// keep_blank_fields n separators make n + 1 pieces, so that an empty text is one empty piece.
/// An empty separator cuts nowhere.
std::vector<std::string> split(const std::string& text, const std::string& separator,
                               StringFunctionParameters::BlankFieldControl control);
