#pragma once

#include <cstddef>
#include <gemmi/symmetry.hpp>
#include <string>
#include <vector>

/// All operations of a group, sorted, each once and with its shift within the cell; none where they
/// are not known.
using Operations = std::vector<gemmi::Op>;

/// No group has more, and gemmi's search for a group costs their square.
inline constexpr std::size_t most_operations = 192;

/// Those that a Hall symbol such as "-P 2ybc" generates; none where it cannot be read.
Operations operations_of_hall_symbol(const std::string& symbol);
/// Those of a list of texts such as "-x,y+1/2,z"; none where one of them cannot be read.
Operations operations_of_list(const std::vector<std::string>& texts);
/// The group of gemmi's table that has these operations, or null.
const gemmi::SpaceGroup* group_of(const Operations& operations);
