#include "app/Source.h"

#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"

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
    {"plain", "text without mark-up", make<InputTextStyleFinder>, false},
};

}  // namespace

std::span<const Source> sources() { return source_rows; }
