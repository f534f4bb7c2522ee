#pragma once

#include <string>

template <class T>
class EnumTextMapping;

/// The same or a related structure in a database.
struct DatabaseCrossReference {
    /// How the structure there is related to the entry's.
    enum CrossReferenceType : int { same_structure, related_structure, superseded };

    CrossReferenceType type;  ///< One of the enumerators: others have no text.
    std::string code;         ///< The database and the number there: "COD 2013971".

    /// The words in which each type is shown. Lives as long as the program.
    static const EnumTextMapping<CrossReferenceType>& cross_reference_type_text();
};
