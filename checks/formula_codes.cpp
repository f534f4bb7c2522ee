#include "checks/CheckCode.h"

namespace {

using Level = Problem::Level;

constexpr CheckCode rows[] = {
    {"sum-unreadable", Level::warning, "the sum formula cannot be read",
     "A sum formula is a list of symbols of elements with their counts and blanks between them.",
     "_chemical_formula_sum 'not known'", "_chemical_formula_sum 'C6 H6'"},
    {"moiety-unreadable", Level::note, "the formula of the moieties cannot be read",
     "Moieties stand with commas between them; each is a list of symbols with their counts, with "
     "brackets where a number stands before it, and with its charge behind it. Words are none.",
     "_chemical_formula_moiety 'C6 H6, solvent'", "_chemical_formula_moiety 'C6 H6, 2(H2 O)'"},
    {"element-unknown", Level::warning, "not the symbol of an element",
     "Symbols have a capital and up to one small letter. Those of elements are known, and D for "
     "deuterium.",
     "_chemical_formula_sum 'C6 H6 Xy2'", "_chemical_formula_sum 'C6 D6 Xe2'"},
    {"element-case", Level::warning, "capitals and small letters are mixed up in a symbol",
     "The second letter of a symbol is a small one: \"CO\" is carbon and oxygen, \"Co\" cobalt. "
     "Letters are put right where they can mean one element only.",
     "_chemical_formula_sum 'C6 H5 CL'", "_chemical_formula_sum 'C6 H5 Cl'"},
    {"sum-not-added-up", Level::warning, "the sum formula is not added up",
     "Each element stands once in a sum formula, with the count of all moieties together and "
     "without brackets.",
     "_chemical_formula_sum 'C6 H6, 2(H2 O)'", "_chemical_formula_sum 'C6 H10 O2'"},
    {"formula-blanks", Level::note, "symbols without blanks between them",
     "Each symbol with its count is a word of its own. Where two capitals stand together that "
     "could be the symbol of one element, weight and sum decide whether the blank is safe.",
     "_chemical_formula_sum C6H6", "_chemical_formula_sum 'C6 H6'"},
    {"formula-order", Level::note, "the elements of the sum formula are not in the usual order",
     "Carbon and hydrogen stand in front and the others follow by the alphabet of their symbols; "
     "without carbon all are in that order. Only sums are looked at.",
     "_chemical_formula_sum 'Cs2 Mn2 P2 O20 H12'", "_chemical_formula_sum 'Cs2 H12 Mn2 O20 P2'"},
    {"sum-moiety-differ", Level::warning, "the sum formula is not the sum of the moieties",
     "The moieties are added up, each as often as the number before it says, and compared element "
     "by element; rounded numbers may differ by their rounding, and deuterium may count as "
     "hydrogen. Formulae with unknowns such as n are left alone, unless all is repeated n times.",
     "_chemical_formula_moiety '2(C4 H4 F N3 O), 5(H2 O)'\n"
     "_chemical_formula_sum 'C4 H9 F N3 O3.5'",
     "_chemical_formula_moiety '2(C4 H4 F N3 O), 5(H2 O)'\n"
     "_chemical_formula_sum 'C8 H18 F2 N6 O7'"},
    {"sum-weight-differ", Level::warning, "the formula weight is not that of the sum formula",
     "The weight is computed from standard atomic weights. It may differ by its last digit, by "
     "0.1 % (0.4 and 0.01 % from 400 on), as tables have changed, and by what rounding of the "
     "counts makes. "
     "Deuterium may count as hydrogen.",
     "_chemical_formula_sum 'C24 H30 O8'\n_chemical_formula_weight 892.96",
     "_chemical_formula_sum 'C24 H30 O8'\n_chemical_formula_weight 446.5"},
};

}  // namespace

std::span<const CheckCode> formula_codes() { return rows; }
