#pragma once

#include "finders/TextSearchStyleFinder.h"

class StringNormalisationPolicy;

/// Highlights what a chemical name has in common with a queried one: runs of 3 characters and more,
/// punctuation and white space left out. Costs what CommonSubstringFinder and TextSearchStyleFinder
/// cost.
class ChemicalNameMatchStyleFinder : public TextSearchStyleFinder {
public:
    /// `finder` sees the name's own styles.
    explicit ChemicalNameMatchStyleFinder(THandle<InputTextStyleFinder> finder);
    ~ChemicalNameMatchStyleFinder() override;

    /// What is left out of names before they are compared.
    static const StringNormalisationPolicy& normalisation();
};
