#include "suppliers/SohnckeGroupSupplier.h"

SohnckeGroupSupplier::~SohnckeGroupSupplier() = default;

std::string SohnckeGroupSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    return text(entry->crystal_info->spacegroup);
}

std::string SohnckeGroupSupplier::text(const Spacegroup& spacegroup) const {
    if (spacegroup.number < 1 || spacegroup.number > 230) return "unknown";
    return spacegroup.sohncke() ? "yes" : "no";
}
