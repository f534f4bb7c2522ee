#pragma once

#include "suppliers/InputTextSupplier.h"

/// The day on which the entry came in; empty when there is none.
class AccessionDateSupplier : public InputTextSupplier {
public:
    ~AccessionDateSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;
};
