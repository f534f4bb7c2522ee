#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "checks/CheckedEntry.h"
#include "checks/WrittenFormula.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

using gemmi::El;
using Value = CheckedEntry::Value;

constexpr std::string_view moiety_tag = "_chemical_formula_moiety";
constexpr std::string_view weight_tag = "_chemical_formula_weight";

/// How many times of another number a number is, in words; empty where that is no whole number and
/// no fraction of one.
std::string ratio_in_words(double number, double of) {
    constexpr double largest = 24, slack = 1e-3;
    for (const bool is_fraction : {false, true}) {
        const double ratio = is_fraction ? of / number : number / of;
        const double rounded = std::round(ratio);
        if (rounded < 2 || rounded > largest || std::abs(ratio - rounded) > slack) continue;
        if (!is_fraction) return short_number(rounded) + " times";
        return std::string("1/").append(short_number(rounded)).append(" of");
    }
    return "";
}

/// The number of a weight and half of a unit in its last digit.
struct Weight {
    double value, half_unit;
};

std::optional<Weight> read_weight(const Value& value) {
    const std::optional<UncertainValue> number = read_number(value.text);
    if (!number || !(number->value > 0)) return std::nullopt;
    const std::size_t point = value.text.find('.');
    const std::size_t end = value.text.find('(');
    double half_unit = 0.5;
    if (point != std::string::npos) {
        for (std::size_t i = point + 1; i < std::min(end, value.text.size()); ++i) half_unit /= 10;
    }
    return Weight{number->value, half_unit};
}

bool fits(const Weight& weight, const ElementTotals& totals) {
    constexpr double light = 0.001, heavy = 0.0001, most_of_light = 0.4;
    ElementTotals with_hydrogen = totals;
    with_hydrogen.add(El::H, totals.of(El::D));
    with_hydrogen.add(El::D, -totals.of(El::D));
    for (const ElementTotals& all : {totals, with_hydrogen}) {
        const double computed = all.weight();
        const double tolerance = weight.half_unit + all.weight_rounding() +
                                 std::min(light * computed, most_of_light + heavy * computed);
        if (std::abs(weight.value - computed) <= tolerance) return true;
    }
    return false;
}

/// Whether two formulae have the same but for rounding; hydrogen and deuterium together.
bool are_equal(const ElementTotals& a, const ElementTotals& b) {
    constexpr double slack = 1e-6;
    for (std::size_t i = 0; i < a.total.size(); ++i) {
        double left = a.total[i], right = b.total[i];
        const El element = static_cast<El>(i);
        if (element == El::D) continue;
        if (element == El::H) {
            left += a.of(El::D);
            right += b.of(El::D);
        }
        if (std::abs(left - right) > slack + a.rounding[i] + b.rounding[i]) return false;
    }
    return true;
}

/// The formulae of an entry and its weight, as far as it gives them.
class FormulaCheck {
public:
    explicit FormulaCheck(CheckedEntry& entry)
        : entry_(entry),
          sum_value_(entry.first(cif_tags::sum_formula)),
          moiety_value_(entry.first(moiety_tag)),
          weight_value_(entry.first(weight_tag)),
          sum_(sum_value_.text),
          moiety_(moiety_value_.text) {}

    void run() {
        if (sum_value_) check_sum();
        if (moiety_value_) check_moiety();
        compare_with_moiety();
        compare_with_weight();
    }

private:
    void check_sum();
    void check_moiety();
    bool check_symbols(const Value& value, const WrittenFormula& formula,
                       const std::optional<std::string>& mended, bool is_safe);
    std::optional<ElementTotals> totals_of_moieties(const ElementTotals& sum) const;
    void compare_with_moiety();
    void compare_with_weight();
    void add(const char* code, const Value& value, const std::optional<std::string>& mended,
             bool is_safe = true);

    CheckedEntry& entry_;
    Value sum_value_, moiety_value_, weight_value_;
    WrittenFormula sum_, moiety_;
};

/// Adds a finding of how a formula is written.
void FormulaCheck::add(const char* code, const Value& value,
                       const std::optional<std::string>& mended, bool is_safe) {
    CheckFinding& finding = entry_.add(code, value, mended.value_or(""));
    if (mended && is_safe) finding.repair = entry_.replaced(value, *mended);
}

/// Whether nothing is wrong with the letters and blanks of a formula that can be read. Of each
/// value one thing is told, and mending it mends all.
bool FormulaCheck::check_symbols(const Value& value, const WrittenFormula& formula,
                                 const std::optional<std::string>& mended, bool is_safe) {
    const std::string_view unknown = formula.unknown_symbol();
    if (!unknown.empty()) {
        entry_.add("element-unknown", value, std::string("an element, not ").append(unknown));
    } else if (formula.has_wrong_case()) {
        add("element-case", value, mended, is_safe);
    } else if (formula.lacks_blanks()) {
        add("formula-blanks", value, mended, is_safe);
    } else {
        return true;
    }
    return false;
}

void FormulaCheck::check_sum() {
    if (!sum_.is_formula()) {
        entry_.add("sum-unreadable", sum_value_, "symbols with their counts, such as C6 H12 O6");
        return;
    }
    const std::optional<Weight> weight = read_weight(weight_value_);
    // A lone number in front may be that of an isotope.
    const Formula& formula = sum_.formula();
    const bool has_lone_number =
        formula.moieties.size() == 1 && !formula.moieties.front().multiplier.range.empty();
    const bool is_safe = (!sum_.is_ambiguous() && !has_lone_number) ||
                         (weight && sum_.can_be_counted() && fits(*weight, sum_.totals()));
    const std::optional<std::string> mended = sum_.as_sum();
    if (sum_.unknown_symbol().empty() && are_known(sum_.formula()) && !sum_.is_sum()) {
        add("sum-not-added-up", sum_value_, mended, is_safe);
    } else if (check_symbols(sum_value_, sum_, mended, is_safe) && sum_.is_sum() &&
               !sum_.is_in_order()) {
        add("formula-order", sum_value_, mended, is_safe);
    }
}

void FormulaCheck::check_moiety() {
    if (!moiety_.is_formula()) {
        entry_.add("moiety-unreadable", moiety_value_,
                   "moieties with commas between them, such as C6 H12 O6, 2(H2 O)");
        return;
    }
    const bool is_safe =
        !moiety_.is_ambiguous() || (moiety_.can_be_counted() && sum_.can_be_counted() &&
                                    are_equal(moiety_.totals(), sum_.totals()));
    check_symbols(moiety_value_, moiety_, moiety_.with_blanks(), is_safe);
}

/// What the moieties have together; of one that is repeated n times as many as the sum may have.
std::optional<ElementTotals> FormulaCheck::totals_of_moieties(const ElementTotals& sum) const {
    if (moiety_.can_be_counted()) return moiety_.totals();
    std::optional<ElementTotals> unit = moiety_.totals_of_unit();
    if (!unit) return std::nullopt;
    const double times = std::max(1.0, std::round(sum.weight() / unit->weight()));
    for (double& total : unit->total) total *= times;
    for (double& rounding : unit->rounding) rounding *= times;
    return unit;
}

void FormulaCheck::compare_with_moiety() {
    if (!sum_.can_be_counted()) return;
    const ElementTotals sum = sum_.totals();
    const std::optional<ElementTotals> all = totals_of_moieties(sum);
    if (!all || are_equal(sum, *all)) return;
    const ElementTotals& moieties = *all;
    std::string expected = sum_formula(moieties);
    const std::string ratio = ratio_in_words(moieties.weight(), sum.weight());
    if (!ratio.empty()) expected.append(", which is ").append(ratio).append(" that");
    entry_.add("sum-moiety-differ", sum_value_, expected);
}

void FormulaCheck::compare_with_weight() {
    const std::optional<Weight> weight = read_weight(weight_value_);
    if (!weight || !sum_.can_be_counted()) return;
    const ElementTotals sum = sum_.totals();
    if (fits(*weight, sum)) return;
    std::string expected = short_number(std::round(sum.weight() * 100) / 100);
    expected.append(" for ").append(sum_value_.text);
    const std::string ratio = ratio_in_words(weight->value, sum.weight());
    if (!ratio.empty()) expected.append("; this is ").append(ratio).append(" that");
    entry_.add("sum-weight-differ", weight_value_, expected);
}

}  // namespace

void check_formula(CheckedEntry& entry) { FormulaCheck(entry).run(); }
