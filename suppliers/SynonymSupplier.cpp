#include "suppliers/SynonymSupplier.h"

#include "suppliers/internal/joined.h"

SynonymSupplier::~SynonymSupplier() = default;

std::string SynonymSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    return joined(entry->chemical_info->synonyms, "; ");
}
