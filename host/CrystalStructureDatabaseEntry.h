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
/// has an empty record of each kind.
struct CrystalStructureDatabaseEntry {
    std::string identifier;
    THandle<ChemicalInfo> chemical_info = make_handle<ChemicalInfo>();
    THandle<CrystalInfo> crystal_info = make_handle<CrystalInfo>();
    THandle<ExperimentalInfo> experimental_info = make_handle<ExperimentalInfo>();
    THandle<EditorsInfo> editors_info = make_handle<EditorsInfo>();
    THandle<Publication> publication = make_handle<Publication>();
    THandle<DepositionInfo> deposition_info = make_handle<DepositionInfo>();
    THandle<CrossReferenceInfo> cross_reference_info = make_handle<CrossReferenceInfo>();
};
