#include "checks/CheckedEntry.h"

void check_text(const CifDocument& /*document*/, CheckFindings& /*findings*/) {}
