#include "suppliers/AccessionDateSupplier.h"

#include "suppliers/internal/printed.h"

AccessionDateSupplier::~AccessionDateSupplier() = default;

std::string AccessionDateSupplier::text(THandle<CrystalStructureDatabaseEntry> entry) const {
    const Date& date = entry->editors_info->accession_date;
    return date.is_null() ? "" : printed(date);
}
