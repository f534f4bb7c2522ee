#include "checks/CheckedEntry.h"

void check_file(const CifDocument& /*document*/, CheckFindings& /*findings*/) {}
