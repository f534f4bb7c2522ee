#pragma once

#include "finders/InputTextStyleFinder.h"

/// Finds the styles of a chemical formula in the database's own form, such as "C6 H12 N1 O2 1+":
/// counts behind symbols and the "n" of polymers below the line, charges above it, and no 1 of
/// single atoms and charges. The first character is never styled. Letters, digits and white space
/// are those of the process's current locale.
class TevoChemicalFormulaStyleFinder : public InputTextStyleFinder {
public:
    ~TevoChemicalFormulaStyleFinder() override;

    /// The digits that follow a letter, and "n" where it follows ")".
    void subscripts(std::vector<StringSlice>& out) const override;
    /// The digits and signs that follow white space, from a digit on.
    void superscripts(std::vector<StringSlice>& out) const override;
    /// The 1 of subscripts "1" and then of superscripts "1+" and "1-".
    void invisible(std::vector<StringSlice>& out) const override;
};
