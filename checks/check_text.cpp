#include "checks/CheckedEntry.h"
#include "checks/check_bytes.h"
#include "checks/check_encoding.h"
#include "checks/check_prose.h"
#include "checks/check_spellings.h"

void check_text(const CifDocument& document, FoundFaults& findings) {
    check_bytes(document, findings);
    check_encoding(document, findings);
    check_prose(document, findings);
    check_spellings(document, findings);
}
