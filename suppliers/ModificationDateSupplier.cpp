#include "suppliers/ModificationDateSupplier.h"

#include "suppliers/internal/printed.h"

ModificationDateSupplier::~ModificationDateSupplier() = default;

std::string ModificationDateSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    const Date& date = entry->editors_info->modification_date;
    return date.is_null() ? "" : printed(date);
}
