#pragma once

#include "suppliers/InputTextSupplier.h"

/// The R-factor in per cent; empty within 1e-7 of 0, which stands for none.
class RFactorSupplier : public InputTextSupplier {
public:
    ~RFactorSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;
};
