#include "suppliers/RFactorSupplier.h"

#include <cmath>

#include "suppliers/internal/printed.h"

RFactorSupplier::~RFactorSupplier() = default;

std::string RFactorSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    const double r_factor = entry->experimental_info->r_factor;
    return std::abs(r_factor) <= 1e-7 ? "" : printed(r_factor);
}
