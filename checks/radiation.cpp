#include "checks/radiation.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "checks/CheckedEntry.h"
#include "checks/in_decimals.h"
#include "entries/cif_text.h"

namespace {

// As tabulated, in Å; the wavelengths of tubes, rotating anodes and metal jets.
constexpr XrayLines all_lines[] = {
    {"ag", 'K', 0.55941, 0.56380, 0.49707}, {"al", 'K', 8.33934, 8.34173, 0},
    {"au", 'L', 1.27640, 1.28777, 0},       {"co", 'K', 1.78897, 1.79285, 1.62079},
    {"cr", 'K', 2.28970, 2.29361, 2.08487}, {"cu", 'K', 1.54056, 1.54439, 1.39222},
    {"fe", 'K', 1.93604, 1.93998, 1.75661}, {"ga", 'K', 1.34013, 1.34402, 0},
    {"in", 'K', 0.51212, 0.51655, 0},       {"mn", 'K', 2.10182, 2.10578, 0},
    {"mo", 'K', 0.70930, 0.71359, 0.63229}, {"ni", 'K', 1.65791, 1.66175, 0},
    {"pd", 'K', 0.58545, 0.58982, 0},       {"rh", 'K', 0.61328, 0.61763, 0},
    {"ti", 'K', 2.74852, 2.75216, 0},       {"v", 'K', 2.50356, 2.50738, 0},
    {"w", 'K', 0.20901, 0.21383, 0},        {"w", 'L', 1.47639, 1.48743, 0},
    {"zn", 'K', 1.43516, 1.43900, 0},       {"zr", 'K', 0.78593, 0.79015, 0},
};

// Values that programs have stood by for years differ by less.
constexpr double spread_of_tables = 0.0006;

bool is_letter(char c) { return c >= 'a' && c <= 'z'; }

/// Whether the lines are named at that place of a text in lower case: "mok\a", "mo-k", "mo k".
bool are_named_at(const XrayLines& lines, std::string_view text) {
    const std::string_view element = lines.element;
    if (!text.starts_with(element)) return false;
    text.remove_prefix(element.size());
    text.remove_prefix(std::min(text.find_first_not_of(" -_~("), text.size()));
    const char shell = lines.shell == 'K' ? 'k' : 'l';
    if (text.empty() || text[0] != shell) return false;
    text.remove_prefix(1);
    // "alpha" without a blank before is the letter's name; else it is a word.
    return text.empty() || !is_letter(text[0]) || text[0] == 'a' || text[0] == 'b';
}

bool is_near(const UncertainValue& wavelength, double from, double to) {
    const double allowed = spread_of_tables + half_a_unit(wavelength);
    return wavelength.value >= from - allowed && wavelength.value <= to + allowed;
}

}  // namespace

const XrayLines* lines_of(std::string_view radiation) {
    const std::string text = in_lower_case(radiation);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (i > 0 && is_letter(text[i - 1])) continue;
        for (const XrayLines& lines : all_lines) {
            if (are_named_at(lines, std::string_view(text).substr(i))) return &lines;
        }
    }
    return nullptr;
}

bool contain(const XrayLines& lines, const UncertainValue& wavelength) {
    return is_near(wavelength, lines.alpha1, lines.alpha2) ||
           (lines.beta > 0 && is_near(wavelength, lines.beta, lines.beta));
}

const XrayLines* lines_with(const UncertainValue& wavelength) {
    for (const XrayLines& lines : all_lines) {
        if (contain(lines, wavelength)) return &lines;
    }
    return nullptr;
}

bool is_of_particles(const CheckedEntry& entry) {
    for (const std::string_view tag :
         {"_diffrn_radiation_probe", "_diffrn_radiation_type", "_diffrn_radiation_source",
          "_diffrn_source", "_diffrn_source_type"}) {
        const std::string text = in_lower_case(entry.first(tag).text);
        for (const std::string_view word : {"neutron", "electron", "reactor", "spallation"}) {
            if (text.find(word) != std::string::npos) return true;
        }
    }
    return false;
}
