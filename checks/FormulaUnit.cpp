#include "checks/FormulaUnit.h"

#include <cmath>
#include <gemmi/elem.hpp>
#include <string>

#include "comparison/Composition.h"
#include "entries/cif_text.h"

namespace {

/// Half a unit of the last place of a count such as the one in "O3.5".
double doubt_of(const Composition::Element& element, std::string_view formula) {
    if (element.total == std::round(element.total)) return 0;
    const StringSlice& range = element.range;
    std::string_view written = formula.substr(range.from(), range.to() - range.from());
    written.remove_prefix(element.symbol.size());
    const std::optional<UncertainValue> count = read_number(written);
    constexpr double coarse = 0.5;  // of a fraction, or what stands in several places
    return count ? 0.5 * std::pow(10.0, -count->decimals) : coarse;
}

}  // namespace

double FormulaUnit::electrons() const {
    double sum = 0;
    for (const Atoms& some : atoms) sum += some.count * some.number;
    return sum;
}

double FormulaUnit::doubt_of_electrons() const {
    double sum = 0;
    for (const Atoms& some : atoms) sum += some.doubt * some.number;
    return sum;
}

std::optional<FormulaUnit> read_formula_unit(std::string_view text) {
    const std::optional<Formula> formula = read_formula(text);
    if (!formula) return std::nullopt;
    FormulaUnit unit;
    const Composition composition(*formula);
    for (const Composition::Element& element : composition.elements) {
        const gemmi::Element known{std::string(element.symbol)};
        if (!element.is_known || element.total <= 0 || known == gemmi::El::X) return std::nullopt;
        unit.atoms.push_back({known.atomic_number(), element.total, doubt_of(element, text)});
        unit.weight += element.total * known.weight();
    }
    if (unit.atoms.empty()) return std::nullopt;
    return unit;
}
