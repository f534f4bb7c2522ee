#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "checks/CheckedEntry.h"
#include "checks/WrittenFormula.h"
#include "checks/cell_content.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

using gemmi::El;

/// How the atoms of a formula unit stand to the formula.
struct Difference {
    bool has_more = false;   ///< Of some element more than the formula.
    bool has_fewer = false;  ///< Of some element less.
    bool lacks_hydrogen = false;
    bool has_more_hydrogen = false;

    bool is_of_others() const { return has_more || has_fewer; }
};

ElementTotals scaled(const ElementTotals& totals, double factor) {
    ElementTotals result = totals;
    for (double& total : result.total) total *= factor;
    for (double& rounding : result.rounding) rounding *= factor;
    return result;
}

bool is_whole(double number) { return std::abs(number - std::round(number)) < 1e-6; }

Difference difference(const ElementTotals& atoms, const ElementTotals& sum) {
    constexpr double least = 0.05, of_whole = 0.002, of_measured = 0.1;
    const bool is_measured = !std::all_of(sum.total.begin(), sum.total.end(), is_whole);
    Difference result;
    for (std::size_t i = 1; i < sum.total.size(); ++i) {
        const El element = static_cast<El>(i);
        if (element == El::D) continue;
        const bool is_hydrogen = element == El::H;
        const double in_formula = sum.total[i] + (is_hydrogen ? sum.of(El::D) : 0);
        const double found = atoms.total[i] + (is_hydrogen ? atoms.of(El::D) : 0);
        // Compositions that were measured are not those that were refined.
        const double tolerance =
            least + (is_measured ? least + of_measured * in_formula : of_whole * in_formula) +
            atoms.rounding[i] + sum.rounding[i];
        const bool more = found > in_formula + tolerance, fewer = found < in_formula - tolerance;
        (is_hydrogen ? result.has_more_hydrogen : result.has_more) |= more;
        (is_hydrogen ? result.lacks_hydrogen : result.has_fewer) |= fewer;
    }
    return result;
}

/// The number of formulae that the atoms are in place of one; nothing where they are others.
std::optional<double> multiple(const ElementTotals& atoms, const ElementTotals& sum) {
    constexpr double numbers[] = {2, 3, 4, 6, 8, 12, 16, 24, 48};
    for (const double number : numbers) {
        if (!difference(scaled(atoms, 1 / number), sum).is_of_others()) return number;
        if (!difference(scaled(atoms, number), sum).is_of_others()) return 1 / number;
    }
    return std::nullopt;
}

/// Whether the density of atoms that could not be placed was left out of the refinement.
bool has_squeezed_solvent(const CheckedEntry& entry) {
    constexpr std::string_view prefixes[] = {"_platon_squeeze_", "_smtbx_masks_"};
    constexpr std::string_view details[] = {"_refine_special_details", "_exptl_special_details",
                                            "_publ_section_exptl_refinement"};
    constexpr std::string_view words[] = {"squeeze", "solvent mask"};
    const auto is_told_of = [&](std::string_view tag) {
        const std::string text = in_lower_case(entry.first(tag).text);
        return std::any_of(std::begin(words), std::end(words), [&](std::string_view word) {
            return text.find(word) != std::string::npos;
        });
    };
    return std::any_of(
               std::begin(prefixes), std::end(prefixes),
               [&](std::string_view prefix) { return entry.entry().block.has_any(prefix); }) ||
           std::any_of(std::begin(details), std::end(details), is_told_of);
}

std::string rounded_sum(ElementTotals atoms) {
    constexpr double unit = 0.01;
    for (double& total : atoms.total) total = std::round(total / unit) * unit;
    return sum_formula(atoms);
}

}  // namespace

void check_atoms(CheckedEntry& entry) {
    const CheckedEntry::Value sum_value = entry.first(cif_tags::sum_formula);
    const WrittenFormula formula(sum_value.text);
    // The sites of modulated structures are averages.
    if (!formula.can_be_counted() || entry.item("_cell_modulation_dimension")) return;
    const ElementTotals sum = formula.totals();
    const std::optional<UncertainValue> z = entry.number(cif_tags::z);
    if (!z || !(z->value >= 1) || !is_whole(z->value)) return;
    const std::optional<CellContent> content = content_of_cell(entry, sum);
    if (!content) return;
    const ElementTotals atoms = scaled(content->atoms, 1 / z->value);
    const ElementTotals others = scaled(content->by_site_factors, 1 / z->value);
    Difference found = difference(atoms, sum);
    if (found.is_of_others() && !difference(others, sum).is_of_others()) return;
    if (found.is_of_others()) {
        std::optional<double> number = multiple(atoms, sum);
        if (!number) number = multiple(others, sum);
        if (number) {
            // Without a certain group it is not known how many the operations should be.
            if (entry.entry().entry->crystal_info->z_prime == 0) return;
            entry.add("atoms-multiple", entry.first(cif_tags::z),
                      short_number(z->value * *number) + " by the atoms");
            return;
        }
    }
    std::string expected = rounded_sum(atoms);
    expected.append(" by the atoms and Z");
    if (found.has_more || found.has_more_hydrogen) {
        entry.add("atoms-differ", sum_value, expected);
    } else if ((found.has_fewer && !has_squeezed_solvent(entry)) ||
               (!found.has_fewer && found.lacks_hydrogen && content->has_hydrogen)) {
        entry.add("atoms-missing", sum_value, expected);
    }
}
