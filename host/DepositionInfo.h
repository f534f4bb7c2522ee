#pragma once

#include <string>
#include <vector>

#include "markup/EnumTextMapping.h"

/// Under which numbers an entry was deposited.
struct DepositionInfo {
    enum DepositionType : int { kovr, supplementary, journal };

    struct Deposition {
        DepositionType type;
        std::string number;
    };

    std::vector<Deposition> depositions;
    std::string kovr_number;

    static const EnumTextMapping<DepositionType>& deposition_type_text();
};
