#pragma once

#include <optional>
#include <string_view>

#include "host/UncertainValue.h"

class CheckedEntry;

/// The strong lines of an element's X-rays, in Å.
struct XrayLines {
    const char* element;
    char shell;  ///< 'K' or 'L', where the hole is.
    double alpha1, alpha2;
    double beta;  ///< 0: not used.
};

/// The lines that a text such as "MoK\a", "Cu K\b" or "Mo-K\a~1~" names, or null. What names an
/// element without a shell names no line.
const XrayLines* lines_of(std::string_view radiation);

/// Whether a wavelength as it is written is among them, their mean included.
bool contain(const XrayLines& lines, const UncertainValue& wavelength);
/// Those that it is among, or null.
const XrayLines* lines_with(const UncertainValue& wavelength);

/// Whether an entry's crystal was measured with neutrons or electrons.
bool is_of_particles(const CheckedEntry& entry);
