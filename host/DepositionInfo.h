#pragma once

#include <string>
#include <vector>

template <class T>
class EnumTextMapping;

/// Under which numbers an entry was deposited.
struct DepositionInfo {
    /// Where: in the database itself, in an archive of supplementary data or with the journal.
    enum DepositionType : int { kovr, supplementary, journal };

    /// One number of the entry.
    struct Deposition {
        DepositionType type;  ///< One of the enumerators: others have no text.
        std::string number;   ///< As the place gave it; letters may be among its digits.
    };

    std::vector<Deposition> depositions;  ///< In the order in which they are shown.
    std::string kovr_number;              ///< The field of that name, as it stands; empty: none.

    /// The words in which each type is shown. Lives as long as the program.
    static const EnumTextMapping<DepositionType>& deposition_type_text();
};
