#pragma once

#include <string>

#include "host/ChemicalInfo.h"
#include "host/CrossReferenceInfo.h"
#include "host/CrystalInfo.h"
#include "host/DepositionInfo.h"
#include "host/EditorsInfo.h"
#include "host/ExperimentalInfo.h"
#include "host/Publication.h"
#include "host/THandle.h"

/// An entry of the database: its records, each shared with whoever holds its handle. A new entry
/// has an empty record of each kind. Where a handle is made null, texts of that record raise the
/// null-handle error.
struct CrystalStructureDatabaseEntry {
    std::string identifier;  ///< The entry's name in the database, shown as it stands.
    /// The record of that kind.
    /// @{
    THandle<ChemicalInfo> chemical_info = make_handle<ChemicalInfo>();
    THandle<CrystalInfo> crystal_info = make_handle<CrystalInfo>();
    THandle<ExperimentalInfo> experimental_info = make_handle<ExperimentalInfo>();
    THandle<EditorsInfo> editors_info = make_handle<EditorsInfo>();
    THandle<Publication> publication = make_handle<Publication>();
    THandle<DepositionInfo> deposition_info = make_handle<DepositionInfo>();
    THandle<CrossReferenceInfo> cross_reference_info = make_handle<CrossReferenceInfo>();
    /// @}
};
