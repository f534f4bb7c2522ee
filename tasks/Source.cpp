#include "tasks/Source.h"

#include <algorithm>
#include <string>

#include "entries/CodedText.h"
#include "finders/CellAngleStyleFinder.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CifFormulaStyleFinder.h"
#include "finders/CifTextStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "finders/SpaceGroupStyleFinder.h"
#include "finders/TevoChemicalFormulaStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "finders/TevoPublicationStyleFinder.h"
#include "finders/UnicodeTextStyleFinder.h"
#include "finders/Z_ZPrimeStyleFinder.h"
#include "text/TextItem.h"

namespace {

template <class Finder>
THandle<InputTextStyleFinder> make() {
    return make_handle<Finder>();
}

/// A Greek letter that no target can name and most leave out.
void note_unknown_letters(const InputTextStyleFinder& finder, std::vector<Problem>& problems) {
    std::vector<GreekSlice> letters;
    finder.greek(letters);
    const bool all_known = std::none_of(letters.begin(), letters.end(), [](const GreekSlice& l) {
        return l.symbol() == TextItem::no_symbol;
    });
    if (all_known) return;
    Problem& problem = problems.emplace_back();
    problem.level = Problem::Level::warning;
    problem.what = "Greek code without a letter";
}

void note_doubts_of_codes(const InputTextStyleFinder& finder, std::vector<Problem>& problems) {
    append_doubts_of(dynamic_cast<const CifTextStyleFinder&>(finder), problems);
}

using Codes = Source::Codes;

Codes no_codes(std::string_view /*text*/) { return Codes::none; }

Codes any_codes(std::string_view /*text*/) { return Codes::letters; }

Codes tevo_codes(std::string_view text) {
    return text.find('<') == std::string_view::npos ? Codes::marks : Codes::letters;
}

Codes reference_tags(std::string_view /*text*/) { return Codes::marks; }

Codes tags(std::string_view text) {
    return text.find('<') == std::string_view::npos ? Codes::none : Codes::letters;
}

Codes cif_codes(std::string_view text) {
    if (!CodedText::may_hold_codes(text)) return Codes::none;
    const bool has_letters = text.find_first_of("\\&<") != std::string_view::npos;
    return has_letters ? Codes::letters : Codes::marks;
}

constexpr Source source_rows[] = {
    {"tevo-name",
     "a chemical name in the database's own mark-up: Greek letters spelled out, !2$ below and $2! "
     "above the line",
     make<TevoChemicalNameStyleFinder>, nullptr, false, tevo_codes},
    {"cif-name", "a chemical name in the text conventions of CIF files: \\a, ~2~, ^2^",
     make<CifChemicalNameStyleFinder>, note_unknown_letters, false, cif_codes},
    {"cif-text",
     "a text of a CIF file with all its codes: \\a, \\'e, \\\\times, ~2~, ^2^, <i>, &lt;",
     make<CifTextStyleFinder>, note_doubts_of_codes, true, cif_codes},
    {"unicode",
     "a text pasted from a page or a paper: Greek letters, raised and lowered characters",
     make<UnicodeTextStyleFinder>, nullptr, true, any_codes},
    {"formula", "a chemical formula: C6 H12 N1 O2 1+", make<TevoChemicalFormulaStyleFinder>,
     nullptr, false, no_codes},
    {"cif-formula",
     "a chemical formula as CIF files write it: Na1.7 (P O2)4, C18 H18 N4 2+, 2(B F4 1-)",
     make<CifFormulaStyleFinder>, nullptr, false, no_codes},
    {"spacegroup", "a space-group symbol: P2<sub>1</sub>/c, P<bar>1</bar>",
     make<SpaceGroupStyleFinder>, nullptr, false, tags},
    {"cell-lengths", "cell lengths behind labels: a 5.1 b 7.25(1) c 9",
     make<CombinedCellLengthsStyleFinder>, nullptr, false, no_codes},
    {"cell-angles", "cell angles behind labels: a 90 b 100.5(3) g 90", make<CellAngleStyleFinder>,
     nullptr, false, no_codes},
    {"z", "formula units behind labels: Z: 4 Z': 1", make<Z_ZPrimeStyleFinder>, nullptr, false,
     no_codes},
    {"reference", "a literature reference: <j>Acta</j><v>57</v><y>2001</y><p>1</p>",
     make<TevoPublicationStyleFinder>, nullptr, false, reference_tags},
    {"plain", "text without mark-up", make<InputTextStyleFinder>, nullptr, false, no_codes},
};

}  // namespace

std::span<const Source> sources() { return source_rows; }
