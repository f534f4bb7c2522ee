#pragma once

#include "suppliers/InputTextSupplier.h"

/// Whether the entry's space group is a Sohncke group: "yes", "no", or "unknown" when its number is
/// none of 1 to 230.
class SohnckeGroupSupplier : public InputTextSupplier {
public:
    ~SohnckeGroupSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;
    /// The same for a space group by itself.
    std::string text(const Spacegroup& spacegroup) const;
};
