#pragma once

#include <string>

// The parts of an HTML5 page of entries, in the order in which they are written. Rows hold mark-up;
// titles and labels are text.

std::string page_head(const std::string& title);
std::string page_section_head(const std::string& title, const std::string& source);
std::string page_group(const std::string& group);
std::string page_row(const std::string& label, const std::string& mark_up);
/// A row with two columns, marked where they differ.
std::string page_pair(const std::string& label, const std::string& left, const std::string& right,
                      bool same);
std::string page_section_foot();
std::string page_foot();
