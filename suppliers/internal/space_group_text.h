#pragma once

#include <string>

/// The text of a symbol of Hermann and Mauguin with blanks, such as "P 1 21/c 1": without the
/// blanks, screw axes as "2<sub>1</sub>" and inversion axes as "<bar>4</bar>". Full monoclinic
/// symbols of the b axis lose the 1 of the other two.
std::string space_group_text(const std::string& symbol);
