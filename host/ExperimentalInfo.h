#pragma once

#include <optional>
#include <string>

#include "host/UncertainValue.h"

/// The experiment of an entry. Empty texts are not known.
struct ExperimentalInfo {
    std::optional<UncertainValue> temperature;    ///< Of the measurement, in K.
    std::string temperature_text;                 ///< The temperature in words.
    std::optional<UncertainValue> average_sigma;  ///< Mean uncertainty of the C-C bonds, in Å.
    double r_factor = 0;                          ///< In per cent; 0: not known.
    /// In words, shown as they stand; a pressure has its unit beside it, densities are in g/cm³.
    /// @{
    std::string pressure, density_author, density_kovr, radiation_probe, radiation_source,
        absolute_configuration, diffraction_details, powder_study, refinement_details,
        intensity_method;
    /// @}
};
