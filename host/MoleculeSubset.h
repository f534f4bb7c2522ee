#pragma once

#include <vector>

#include "host/Atom.h"

/// The atoms of an entry that have coordinates.
struct MoleculeSubset {
    std::vector<Atom> atoms;  ///< Each once, those made by symmetry left out.
};
