#pragma once

#include "suppliers/InputTextSupplier.h"

/// The formula units in cell and asymmetric unit: "Z: 4 Z': 1". Those that are not known are 0.
class Z_ZPrimeSupplier : public InputTextSupplier {
public:
    ~Z_ZPrimeSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;
};
