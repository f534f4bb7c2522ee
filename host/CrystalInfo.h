#pragma once

#include <optional>
#include <string>

#include "host/Cell.h"
#include "host/MoleculeSubset.h"
#include "host/ReducedCell.h"
#include "host/Spacegroup.h"

/// The crystal of an entry. Empty texts are not known.
struct CrystalInfo {
    std::optional<Cell> cell;
    std::optional<ReducedCell> reduced_cell;
    Spacegroup spacegroup;
    double z = 0;        // formula units in the cell; 0: not known
    double z_prime = 0;  // and in the asymmetric unit
    MoleculeSubset molecules;
    std::string color, habit, analogues, melting_point, experimental_notes, phase_transitions,
        polymorph, sensitivity, recrystallisation_solvent, disorder, other_cell_details;
};
