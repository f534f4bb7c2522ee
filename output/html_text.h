#pragma once

#include <string>
#include <string_view>

// Texts as pages hold them.

/// Text in elements and in values of attributes; see Html5RichTextGenerator::escape().
std::string escaped(std::string_view text);
/// JSON, in which nothing acts, in values of attributes between apostrophes.
std::string in_quotes(std::string_view json);
/// A text of whatever direction, beside which all stays where it is.
std::string isolated(std::string_view text);
/// The name of a file without the folders that it is in.
std::string without_folders(const std::string& file);
/// Letters, digits and hyphens of ASCII, for anchors: "r-factor" of "R-Factor (%)"; letters of a
/// text that is no label keep their case. `otherwise` where nothing is left.
/// @{
std::string slug_of_label(std::string_view label);
std::string slug(std::string_view text, const char* otherwise);
/// @}
/// Where a DOI leads, as the value of an attribute; empty where the text is none.
std::string link_of_doi(std::string_view text);
