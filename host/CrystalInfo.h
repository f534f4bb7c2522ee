#pragma once

#include <optional>
#include <string>

#include "host/Cell.h"
#include "host/MoleculeSubset.h"
#include "host/ReducedCell.h"
#include "host/Spacegroup.h"

/// The crystal of an entry. Empty texts are not known.
struct CrystalInfo {
    std::optional<Cell> cell;                 ///< Of the space group's setting.
    std::optional<ReducedCell> reduced_cell;  ///< Of the lattice of `cell`.
    Spacegroup spacegroup;                    ///< Its symbol is empty where it is not known.
    double z = 0;                             ///< Formula units in the cell; 0: not known.
    double z_prime = 0;        ///< Formula units in the asymmetric unit; 0: not known.
    MoleculeSubset molecules;  ///< Without atoms where no coordinates are known.
    /// In words, shown as they stand; numbers among them have their units beside them.
    /// @{
    std::string color, habit, analogues, melting_point, experimental_notes, phase_transitions,
        polymorph, sensitivity, recrystallisation_solvent, disorder, other_cell_details;
    /// @}
};
