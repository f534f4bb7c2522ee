#include "suppliers/Z_ZPrimeSupplier.h"

#include "suppliers/internal/printed.h"

Z_ZPrimeSupplier::~Z_ZPrimeSupplier() = default;

std::string Z_ZPrimeSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    const THandle<CrystalInfo> crystal = entry->crystal_info;
    return printed("Z: ", crystal->z, " Z': ", crystal->z_prime);
}
