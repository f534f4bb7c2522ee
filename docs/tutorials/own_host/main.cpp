#include <exception>
#include <iostream>

#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/CombinedCellLengthsStyleFinder.h"
#include "markup/Html5RichTextGenerator.h"
#include "suppliers/FieldTextSupplier.h"
#include "text/TextItem.h"

namespace {

/// What an application would read from its own database.
THandle<CrystalStructureDatabaseEntry> make_entry() {
    auto entry = make_handle<CrystalStructureDatabaseEntry>();
    entry->chemical_info->compound_name = "catena-(\\m~3~-Carbodiimidato-\\k^2^N)-strontium";
    entry->crystal_info->cell = {{3.9732, 0.0005}, {3.9732, 0.0005}, {15.028, 0.003},
                                 {{90}},           {{90}},           {{120}}};
    return entry;
}

void show(LMRFieldNames::TextID field, const THandle<CrystalStructureDatabaseEntry>& entry,
          const THandle<InputTextStyleFinder>& finder) {
    const std::string text = FieldTextSupplier(field).text(entry);
    Html5RichTextGenerator generator;
    const std::string html = TextItem(finder, text).mark_up_text(generator);
    std::cout << LMRFieldNames::text(field) << ": " << html << '\n';
}

}  // namespace

int main() try {
    const auto entry = make_entry();
    show(LMRFieldNames::compound_name, entry, make_handle<CifChemicalNameStyleFinder>());
    show(LMRFieldNames::cell_lengths, entry, make_handle<CombinedCellLengthsStyleFinder>());
    show(LMRFieldNames::cell_volume, entry, make_handle<InputTextStyleFinder>());
    show(LMRFieldNames::formula, entry, {});  // forgets the finder
} catch (const std::exception& error) {
    std::cout << error.what() << '\n';
}
