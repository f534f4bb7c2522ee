#include "entries/quantities.h"

#include <algorithm>
#include <cmath>

#include "entries/cif_text.h"

namespace {

/// Whether two numbers stand there with a dash between them.
bool is_range(std::string_view text) {
    constexpr std::string_view en_dash = "\xE2\x80\x93";
    std::size_t size = 1;
    std::size_t dash = text.find('-', 1);  // the first may be a sign
    if (dash == std::string_view::npos) {
        dash = text.find(en_dash);
        size = en_dash.size();
    }
    if (dash == std::string_view::npos) return false;
    if (text.substr(dash, 2) == "--") ++size;
    return read_number(text.substr(0, dash)) && read_number(text.substr(dash + size));
}

/// Half a unit of the last place, in which a number is rounded.
double rounding(const UncertainValue& value) { return 0.5 * std::pow(10.0, -value.decimals); }

/// Whether symmetry and not a measurement makes an angle what it is; edges have decimals.
bool is_exact(const UncertainValue& parameter) {
    return parameter.uncertainty == 0 && (parameter.value == 90 || parameter.value == 120);
}

}  // namespace

bool is_number_or_range(std::string_view text) { return read_number(text) || is_range(text); }

std::string with_unit(std::string text, std::string_view unit) {
    if (is_number_or_range(text)) text.append(" ").append(unit);
    return text;
}

std::optional<double> read_per_cent(BlockReader& block, Tags tags) {
    const std::optional<UncertainValue> fraction = block.number(tags);
    if (!fraction) return std::nullopt;
    if (fraction->value > 1) {
        block.add_unexpected(block.first_value(tags), "r-factor-above-1", "a number up to 1")
            .level = Problem::Level::warning;
    }
    return 100 * fraction->value;
}

// Three standard uncertainties of the difference: that of the measured volume and what those of the
// cell's parameters make of the calculated one, as if they were independent of each other. Besides
// each number may be off by half a unit of its last place; older files have nothing else to go by.
double volume_tolerance(const Cell& cell, const UncertainValue& measured) {
    double variance = measured.uncertainty * measured.uncertainty;
    double rounded = rounding(measured);
    Cell changed = cell;
    for (UncertainValue* parameter : {&changed.a, &changed.b, &changed.c, &changed.alpha.degrees,
                                      &changed.beta.degrees, &changed.gamma.degrees}) {
        if (is_exact(*parameter)) continue;
        const double value = parameter->value;
        const auto change = [&](double by) {
            parameter->value = value + by;
            const double volume = changed.volume();
            parameter->value = value;
            return std::abs(volume - cell.volume());
        };
        const double uncertain = change(parameter->uncertainty);
        variance += uncertain * uncertain;
        rounded += change(rounding(*parameter));
    }
    return 3 * std::sqrt(variance) + rounded;
}
