#pragma once

#include "suppliers/InputTextSupplier.h"

/// The synonyms of the compound, separated by "; ".
class SynonymSupplier : public InputTextSupplier {
public:
    ~SynonymSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;
};
