#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a chemical formula as CIF files write it: "C18 H18 N4 2+, 2(B F4 1-)",
/// "CuSO4.5H2O", "Na1.7 (P O2)4", "(C2 H4)n". Nothing is hidden or replaced; a formula that cannot
/// be understood has fewer styles. Letters, digits and blanks are those of ASCII, whatever the
/// locale.
///
/// A number in front of a unit is plain: at the beginning, behind a blank or a dot of hydration. A
/// dot between digits is one of hydration when water or another usual solvent follows the number,
/// and otherwise a decimal point. A charge ends its unit, so that a sign between units is plain.
class CifFormulaStyleFinder : public InputTextStyleFinder {
public:
    ~CifFormulaStyleFinder() override;

    /// The counts behind symbols and closing brackets: "2", "0.75", ".09", "1/3", "n", "2n", "1-x".
    /// A symbol is a capital and up to two small letters.
    void subscripts(std::vector<StringSlice>& out) const override;
    /// The charges behind a blank, a closing bracket or a symbol: "+", "2-", "n+"; behind a bracket
    /// digits with a sign are a charge. In "Cu2+" too, while "N H4+" has a count and a sign;
    /// "SO42-" may mean either and has no styles there.
    void superscripts(std::vector<StringSlice>& out) const override;
    /// Finds everything once, in linear time, for the queries to copy.
    void calc_tag_positions() override;

private:
    std::vector<StringSlice> subscripts_;
    std::vector<StringSlice> superscripts_;
};
