#pragma once

#include <string>

// The parts of an HTML5 page of entries, in the order in which they are written. The title of the
// page and labels are text; titles of sections and rows hold mark-up. Names and rows are isolated:
// whatever direction a text is written in, what stands beside it stays where it is.

/// The mark-up of a name that is given as text, for titles of sections.
std::string page_name(const std::string& text);

std::string page_head(const std::string& title);
std::string page_section_head(const std::string& title, const std::string& source);
std::string page_group(const std::string& group);
std::string page_row(const std::string& label, const std::string& mark_up);
/// A row with two columns, marked where they differ.
std::string page_pair(const std::string& label, const std::string& left, const std::string& right,
                      bool same);
std::string page_section_foot();
std::string page_foot();
