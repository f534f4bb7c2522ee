#pragma once

#include <string>

/// A line for each code that check knows: its name, its level and what it says.
std::string check_codes_table();

/// A page in Markdown that explains each with its example and near miss.
std::string check_codes_page();
