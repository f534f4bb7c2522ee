#pragma once

#include <string>

#include "markup/EnumTextMapping.h"

/// The same or a related structure in a database.
struct DatabaseCrossReference {
    enum CrossReferenceType : int { same_structure, related_structure, superseded };

    CrossReferenceType type;
    std::string code;  // "COD 2013971"

    static const EnumTextMapping<CrossReferenceType>& cross_reference_type_text();
};
