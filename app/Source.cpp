#include "app/Source.h"

#include "finders/CellAngleStyleFinder.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/Z_ZPrimeStyleFinder.h"

namespace {

template <class Finder>
THandle<InputTextStyleFinder> make() {
    return make_handle<Finder>();
}

constexpr Source source_rows[] = {
    {"tevo-name", "a chemical name in the database's own mark-up",
     make<TevoChemicalNameStyleFinder>, false},
    {"cif-name", "a chemical name in the text conventions of CIF files",
     make<CifChemicalNameStyleFinder>, true},
    {"formula", "a chemical formula, as C6 H12 N1 O2 1+", make<TevoChemicalFormulaStyleFinder>,
     false},
    {"spacegroup", "a space-group symbol with <sub> and <bar>", make<SpaceGroupStyleFinder>, false},
    {"cell-lengths", "cell lengths behind the labels a, b and c",
     make<CombinedCellLengthsStyleFinder>, false},
    {"cell-angles", "cell angles behind the labels a, b and g", make<CellAngleStyleFinder>, false},
    {"z", "formula units behind the labels Z and Z'", make<Z_ZPrimeStyleFinder>, false},
    {"reference", "a reference tagged as <j>, <v>, <y> and <p>", make<TevoPublicationStyleFinder>,
     false},
    {"plain", "text without mark-up", make<InputTextStyleFinder>, false},
};

}  // namespace

std::span<const Source> sources() { return source_rows; }
