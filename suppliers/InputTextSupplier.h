#pragma once

#include <string>

#include "host/CrystalStructureDatabaseEntry.h"
#include "host/THandle.h"

/// Turns an entry into the text of one of its fields. Suppliers keep no state and may be shared.
/// Numbers and dates are written as in the "C" locale, whatever the process's is.
class InputTextSupplier {
public:
    InputTextSupplier() = default;
    InputTextSupplier(const InputTextSupplier&) = delete;
    InputTextSupplier& operator=(const InputTextSupplier&) = delete;
    virtual ~InputTextSupplier();

    /// The field's text; raises the null-handle error without an entry or its record. O(n) for the
    /// n characters of the field, unless a supplier says more.
    virtual std::string text(THandle<CrystalStructureDatabaseEntry> entry) const = 0;
};
