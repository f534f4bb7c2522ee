#pragma once

#include "fields/LMRFieldNames.h"
#include "suppliers/InputTextSupplier.h"

/// The text of any field of the catalogue, in the layout that the field's style finder reads. What
/// an entry does not know is an empty text, but for the "unknown" of SohnckeGroupSupplier.
class FieldTextSupplier : public InputTextSupplier {
public:
    /// Throws what LMRFieldNames::text() throws.
    explicit FieldTextSupplier(LMRFieldNames::TextID field);
    ~FieldTextSupplier() override;

    std::string text(THandle<CrystalStructureDatabaseEntry> entry) const override;

private:
    std::string (*text_of_)(const THandle<CrystalStructureDatabaseEntry>& entry);
};
