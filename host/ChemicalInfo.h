#pragma once

#include <string>
#include <vector>

/// The compound of an entry. Empty texts are not known.
struct ChemicalInfo {
    std::string formula;                   ///< "C6 H12 N1 O2 1+"
    std::string compound_name;             ///< In the database's own mark-up, as the synonyms.
    std::vector<std::string> synonyms;     ///< Other names, in the order in which they are shown.
    std::vector<std::string> classifiers;  ///< Classes of compounds, one plain text each.
    /// In words, shown as they stand.
    /// @{
    std::string bioactivity, conformer, isomer, source, peptide_sequence;
    /// @}
};
