#include "checks/CheckedEntry.h"

void check_publication(CheckedEntry& /*entry*/) {}
