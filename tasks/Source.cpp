#include "tasks/Source.h"

#include "finders/CellAngleStyleFinder.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/UnicodeTextStyleFinder.h"
#include "finders/Z_ZPrimeStyleFinder.h"

namespace {

template <class Finder>
THandle<InputTextStyleFinder> make() {
    return make_handle<Finder>();
}

constexpr Source source_rows[] = {
    {"tevo-name",
     "a chemical name in the database's own mark-up: Greek letters spelled out, !2$ below and $2! "
     "above the line",
     make<TevoChemicalNameStyleFinder>, false},
    {"cif-name", "a chemical name in the text conventions of CIF files: \\a, ~2~, ^2^",
     make<CifChemicalNameStyleFinder>, true},
    {"cif-text",
     "a text of a CIF file with all its codes: \\a, \\'e, \\\\times, ~2~, ^2^, <i>, &lt;",
     make<CifTextStyleFinder>, false},
    {"unicode",
     "a text pasted from a page or a paper: Greek letters, raised and lowered characters",
     make<UnicodeTextStyleFinder>, false},
    {"formula", "a chemical formula: C6 H12 N1 O2 1+", make<TevoChemicalFormulaStyleFinder>, false},
    {"spacegroup", "a space-group symbol: P2<sub>1</sub>/c, P<bar>1</bar>",
     make<SpaceGroupStyleFinder>, false},
    {"cell-lengths", "cell lengths behind labels: a 5.1 b 7.25(1) c 9",
     make<CombinedCellLengthsStyleFinder>, false},
    {"cell-angles", "cell angles behind labels: a 90 b 100.5(3) g 90", make<CellAngleStyleFinder>,
     false},
    {"z", "formula units behind labels: Z: 4 Z': 1", make<Z_ZPrimeStyleFinder>, false},
    {"reference", "a literature reference: <j>Acta</j><v>57</v><y>2001</y><p>1</p>",
     make<TevoPublicationStyleFinder>, false},
    {"plain", "text without mark-up", make<InputTextStyleFinder>, false},
};

}  // namespace

std::span<const Source> sources() { return source_rows; }
