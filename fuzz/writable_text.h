#pragma once

#include <string>

/// The text with lines that end with "\n"; they end so, or with "\r\n" or "\r".
std::string with_line_feeds(const std::string& text);

/// Whether an editor writes a text: it must not, it may refuse, it must.
enum class Writable { no, perhaps, yes };

/// Whether a value of a CIF file can have a text, which the lines of text fields may hinder.
Writable writable(const std::string& text, bool is_version_2);
