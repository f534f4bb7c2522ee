#pragma once

#include <vector>

#include "comparison/EditScript.h"
#include "comparison/TextUnits.h"

/// The blocks of units in which two texts differ, as readers would tell them: as few units as
/// possible, but no crumbs that both sides happen to share between two blocks, and what is added or
/// left out begins and ends with words where it can. The cost is bounded: texts that have too
/// little in common are compared by words, or differ as a whole.
std::vector<EditScript::Block> unit_blocks(const TextUnits& left, const TextUnits& right);
