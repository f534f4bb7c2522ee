#pragma once

#include <string>
#include <string_view>

/// A text of one line in the lines of the one that it replaces, as far as both are the same at the
/// beginning and at the end, so that lines without a change stay; the text itself where that would
/// be read as another. Linear in both.
std::string in_kept_lines(std::string_view old, const std::string& text);
