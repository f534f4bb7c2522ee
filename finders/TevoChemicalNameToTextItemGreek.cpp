#include "finders/TevoChemicalNameToTextItemGreek.h"

#include <algorithm>
#include <iterator>

const std::string TevoChemicalNameToTextItemGreek::alpha_ = "alpha";
const std::string TevoChemicalNameToTextItemGreek::beta_ = "beta";
const std::string TevoChemicalNameToTextItemGreek::gamma_ = "gamma";
const std::string TevoChemicalNameToTextItemGreek::delta_ = "delta";
const std::string TevoChemicalNameToTextItemGreek::epsilon_ = "epsilon";
const std::string TevoChemicalNameToTextItemGreek::zeta_ = "zeta";
const std::string TevoChemicalNameToTextItemGreek::eta_ = "eta";
const std::string TevoChemicalNameToTextItemGreek::theta_ = "theta";
const std::string TevoChemicalNameToTextItemGreek::iota_ = "iota";
const std::string TevoChemicalNameToTextItemGreek::kappa_ = "kappa";
const std::string TevoChemicalNameToTextItemGreek::lambda_ = "lambda";
const std::string TevoChemicalNameToTextItemGreek::mu_ = "mu";
const std::string TevoChemicalNameToTextItemGreek::nu_ = "nu";
const std::string TevoChemicalNameToTextItemGreek::xi_ = "xi";
const std::string TevoChemicalNameToTextItemGreek::omicron_ = "omicron";
const std::string TevoChemicalNameToTextItemGreek::pi_ = "pi";
const std::string TevoChemicalNameToTextItemGreek::rho_ = "rho";
const std::string TevoChemicalNameToTextItemGreek::sigma_ = "sigma";
const std::string TevoChemicalNameToTextItemGreek::tau_ = "tau";
const std::string TevoChemicalNameToTextItemGreek::upsilon_ = "upsilon";
const std::string TevoChemicalNameToTextItemGreek::phi_ = "phi";
const std::string TevoChemicalNameToTextItemGreek::chi_ = "chi";
const std::string TevoChemicalNameToTextItemGreek::psi_ = "psi";
const std::string TevoChemicalNameToTextItemGreek::omega_ = "omega";
const std::string TevoChemicalNameToTextItemGreek::capital_delta_ = "cdelta";
const std::string TevoChemicalNameToTextItemGreek::capital_lambda_ = "clambda";

namespace {

struct NameRow {
    const std::string* name;
    TextItem::GreekSymbol symbol;
};

// One row per letter, in value order.
constexpr NameRow name_rows[] = {
    {&TevoChemicalNameToTextItemGreek::alpha_, TextItem::alpha},
    {&TevoChemicalNameToTextItemGreek::beta_, TextItem::beta},
    {&TevoChemicalNameToTextItemGreek::gamma_, TextItem::gamma},
    {&TevoChemicalNameToTextItemGreek::delta_, TextItem::delta},
    {&TevoChemicalNameToTextItemGreek::epsilon_, TextItem::epsilon},
    {&TevoChemicalNameToTextItemGreek::zeta_, TextItem::zeta},
    {&TevoChemicalNameToTextItemGreek::eta_, TextItem::eta},
    {&TevoChemicalNameToTextItemGreek::theta_, TextItem::theta},
    {&TevoChemicalNameToTextItemGreek::iota_, TextItem::iota},
    {&TevoChemicalNameToTextItemGreek::kappa_, TextItem::kappa},
    {&TevoChemicalNameToTextItemGreek::lambda_, TextItem::lambda},
    {&TevoChemicalNameToTextItemGreek::mu_, TextItem::mu},
    {&TevoChemicalNameToTextItemGreek::nu_, TextItem::nu},
    {&TevoChemicalNameToTextItemGreek::xi_, TextItem::xi},
    {&TevoChemicalNameToTextItemGreek::omicron_, TextItem::omicron},
    {&TevoChemicalNameToTextItemGreek::pi_, TextItem::pi},
    {&TevoChemicalNameToTextItemGreek::rho_, TextItem::rho},
    {&TevoChemicalNameToTextItemGreek::sigma_, TextItem::sigma},
    {&TevoChemicalNameToTextItemGreek::tau_, TextItem::tau},
    {&TevoChemicalNameToTextItemGreek::upsilon_, TextItem::upsilon},
    {&TevoChemicalNameToTextItemGreek::phi_, TextItem::phi},
    {&TevoChemicalNameToTextItemGreek::chi_, TextItem::chi},
    {&TevoChemicalNameToTextItemGreek::psi_, TextItem::psi},
    {&TevoChemicalNameToTextItemGreek::omega_, TextItem::omega},
    {&TevoChemicalNameToTextItemGreek::capital_delta_, TextItem::cdelta},
    {&TevoChemicalNameToTextItemGreek::capital_lambda_, TextItem::clambda},
};
static_assert(std::size(name_rows) == TextItem::clambda, "every letter has one row");

}  // namespace

TevoChemicalNameToTextItemGreek::TevoChemicalNameToTextItemGreek() {
    names_.reserve(std::size(name_rows));
    for (const NameRow& row : name_rows) names_.push_back(*row.name);
    std::sort(names_.begin(), names_.end());
}

TextItem::GreekSymbol TevoChemicalNameToTextItemGreek::greek_symbol(const std::string& name) const {
    const auto row =
        std::find_if(std::begin(name_rows), std::end(name_rows),
                     [&](const NameRow& candidate) { return *candidate.name == name; });
    return row == std::end(name_rows) ? TextItem::no_symbol : row->symbol;
}
