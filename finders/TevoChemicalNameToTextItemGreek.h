#pragma once

#include <string>
#include <vector>

#include "text/TextItem.h"

/// The names by which the database's chemical names spell Greek letters.
class TevoChemicalNameToTextItemGreek {
public:
    /// The name of that letter, in lower case; "cdelta" and "clambda" for the capitals.
    /// @{
    static const std::string alpha_;
    static const std::string beta_;
    static const std::string gamma_;
    static const std::string delta_;
    static const std::string epsilon_;
    static const std::string zeta_;
    static const std::string eta_;
    static const std::string theta_;
    static const std::string iota_;
    static const std::string kappa_;
    static const std::string lambda_;
    static const std::string mu_;
    static const std::string nu_;
    static const std::string xi_;
    static const std::string omicron_;
    static const std::string pi_;
    static const std::string rho_;
    static const std::string sigma_;
    static const std::string tau_;
    static const std::string upsilon_;
    static const std::string phi_;
    static const std::string chi_;
    static const std::string psi_;
    static const std::string omega_;
    static const std::string capital_delta_;
    static const std::string capital_lambda_;
    /// @}

    TevoChemicalNameToTextItemGreek();

    /// The names in ascending byte order.
    const std::vector<std::string>& tevo_chemical_name_greek() const { return names_; }
    /// The symbol of exactly that name, or no_symbol.
    TextItem::GreekSymbol greek_symbol(const std::string& name) const;

private:
    std::vector<std::string> names_;
};
