#pragma once

#include <string>
#include <vector>

/// The compound of an entry. Empty texts are not known.
struct ChemicalInfo {
    std::string formula;        // "C6 H12 N1 O2 1+"
    std::string compound_name;  // in the database's own mark-up, as the synonyms
    std::vector<std::string> synonyms;
    std::vector<std::string> classifiers;
    std::string bioactivity, conformer, isomer, source, peptide_sequence;
};
