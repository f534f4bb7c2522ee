#include "output/reader_fields.h"

namespace {

using Place = ReaderField::Place;

constexpr ReaderField rows[] = {
    {"Compound Name", Place::head, "Name", ""},
    {"Formula", Place::head, "Formula", ""},
    {"Identifier", Place::head, "Identifier", ""},
    {"Title", Place::head, "Title", ""},
    {"Author(s)", Place::head, "Authors", ""},
    {"Literature Reference", Place::head, "Reference", ""},
    {"DOI", Place::head, "DOI", ""},

    {"Synonym", Place::chemistry, "Synonym", ""},
    {"Moiety Formula", Place::chemistry, "Moiety formula", ""},
    {"Formula Weight", Place::chemistry, "Formula weight", "g/mol"},
    {"Source", Place::chemistry, "Source", ""},
    {"Bioactivity", Place::chemistry, "Bioactivity", ""},
    {"Conformer", Place::chemistry, "Conformer", ""},
    {"Isomer", Place::chemistry, "Isomer", ""},
    {"Peptide Sequence", Place::chemistry, "Peptide sequence", ""},
    {"Classifiers", Place::chemistry, "Classifiers", ""},
    {"Analogues", Place::chemistry, "Analogues", ""},

    {"Cell Lengths", Place::cell, "a, b, c", "Å"},
    {"Cell Angles", Place::cell, "α, β, γ", "°"},
    {"Cell Volume", Place::cell, "V", "Å³"},
    {"Reduced Cell Lengths", Place::cell, "reduced a, b, c", "Å"},
    {"Reduced Cell Angles", Place::cell, "reduced α, β, γ", "°"},
    {"Reduced Cell Volume", Place::cell, "reduced V", "Å³"},

    {"Space Group", Place::crystal, "Space group", ""},
    {"Sohncke Group", Place::crystal, "Sohncke group", ""},
    {"Z, Z'", Place::crystal, "Formula units", ""},
    {"Density (author)", Place::crystal, "Density (author)", "g/cm³"},
    {"Density (KOVR)", Place::crystal, "Density (KOVR)", "g/cm³"},
    {"Measured Density", Place::crystal, "Measured density", "g/cm³"},
    {"F(000)", Place::crystal, "F(000)", ""},
    {"Color", Place::crystal, "Color", ""},
    {"Habit", Place::crystal, "Habit", ""},
    {"Crystal Size", Place::crystal, "Size", "mm"},
    {"Polymorph", Place::crystal, "Polymorph", ""},
    {"Phase Transitions", Place::crystal, "Phase transitions", ""},
    {"Melting Point", Place::crystal, "Melting point", "K"},
    {"Sensitivity", Place::crystal, "Sensitivity", ""},
    {"Recrystallisation Solvent", Place::crystal, "Recrystallisation solvent", ""},
    {"Disorder", Place::crystal, "Disorder", ""},
    {"Other Cell Details", Place::crystal, "Other cell details", ""},

    {"Temperature (K)", Place::experiment, "Temperature", "K"},
    {"Temperature (text)", Place::experiment, "Temperature (text)", ""},
    {"Pressure", Place::experiment, "Pressure", ""},
    {"Radiation Probe", Place::experiment, "Radiation probe", ""},
    {"Radiation Source", Place::experiment, "Radiation source", ""},
    {"Wavelength", Place::experiment, "Wavelength", "Å"},
    {"Absorption Coefficient", Place::experiment, "Absorption coefficient", "mm⁻¹"},
    {"Absorption Correction", Place::experiment, "Absorption correction", ""},
    {"Theta Range", Place::experiment, "θ range", "°"},
    {"Reflections", Place::experiment, "Reflections", ""},
    {"Intensity Method", Place::experiment, "Intensity method", ""},
    {"Powder Study", Place::experiment, "Powder study", ""},
    {"Diffraction Details", Place::experiment, "Diffraction details", ""},
    {"Experimental Notes", Place::experiment, "Experimental notes", ""},

    {"R-Factor (%)", Place::refinement, "R", "%"},
    {"wR-Factor (%)", Place::refinement, "wR", "%"},
    {"Goodness Of Fit", Place::refinement, "Goodness of fit", ""},
    {"Average Sigma (C-C)", Place::refinement, "Average σ(C–C)", "Å"},
    {"Absolute Configuration", Place::refinement, "Absolute configuration", ""},
    {"Number Of Coordinates", Place::refinement, "Atoms with coordinates", ""},
    {"Refinement Details", Place::refinement, "Refinement details", ""},

    {"Remarks", Place::remarks, "Remarks", ""},
    {"Memo", Place::remarks, "Memo", ""},
    {"Connectivity Comment", Place::remarks, "Connectivity", ""},
    {"Author Correspondence", Place::remarks, "Correspondence", ""},
    {"Ignored Errors", Place::remarks, "Ignored errors", ""},

    {"KOVR Number", Place::records, "KOVR number", ""},
    {"Deposition Numbers", Place::records, "Deposition numbers", ""},
    {"Previous Refcode", Place::records, "Previous refcode", ""},
    {"Cross References", Place::records, "Cross references", ""},
    {"MSDBBIB", Place::records, "MSDBBIB", ""},
    {"Category", Place::records, "Category", ""},
    {"Batch", Place::records, "Batch", ""},
    {"Accession Date", Place::records, "Accession", ""},
    {"Modification Date", Place::records, "Modification", ""},
    {"Bonding Tolerance", Place::records, "Bonding tolerance", "Å"},
    {"Tevo Match Flag", Place::records, "Tevo match flag", ""},
};

}  // namespace

std::span<const ReaderField> reader_fields() { return rows; }

const char* title_of(ReaderField::Place place) {
    switch (place) {
        case Place::chemistry:
            return "Chemistry";
        case Place::head:
        case Place::cell:
        case Place::crystal:
            return "Crystal";
        case Place::experiment:
            return "Experiment";
        case Place::refinement:
            return "Refinement";
        case Place::remarks:
            return "Remarks";
        case Place::records:
            break;
    }
    return "Records";
}
