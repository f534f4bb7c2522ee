#pragma once

#include <optional>
#include <string>

#include "host/UncertainValue.h"

/// The experiment of an entry. Empty texts are not known.
struct ExperimentalInfo {
    std::optional<UncertainValue> temperature;    // K
    std::string temperature_text;                 // in words
    std::optional<UncertainValue> average_sigma;  // of the C-C bonds, Å
    double r_factor = 0;                          // %; 0: not known
    std::string pressure, density_author, density_kovr, radiation_probe, radiation_source,
        absolute_configuration, diffraction_details, powder_study, refinement_details,
        intensity_method;
};
