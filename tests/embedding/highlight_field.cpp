// A CIF in memory, a term highlighted in one of its fields, written as HTML5.
#include <iostream>
#include <utility>

#include "entries/EntryReader.h"
#include "markup/Html5RichTextGenerator.h"
#include "tasks/EntryFinder.h"
#include "tasks/TermKind.h"

int main() {
    const EntryReader reader("data_x _chemical_name_systematic 'trans-platin\\b'");
    const Field ids[] = {field_of(LMRFieldNames::compound_name)};
    EntryFinder::Terms terms;
    terms.push_back(make_term("platin", {}));
    const EntryFinder finder(ids, std::move(terms), {});
    const EntryFields fields(reader[0], ids, &finder);
    Html5RichTextGenerator generator;
    std::cout << fields.fields.at(0).item.mark_up_text(generator) << '\n';
}
