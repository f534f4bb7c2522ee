#pragma once

#include "suppliers/InputTextSupplier.h"

/// The day on which the entry was changed last; empty when there is none.
class ModificationDateSupplier : public InputTextSupplier {
public:
    ~ModificationDateSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;
};
