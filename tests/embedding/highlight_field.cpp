// A CIF in memory, a term highlighted in one of its fields, written as HTML5.
#include <iostream>

#include "entries/EntryReader.h"
#include "markup/Html5RichTextGenerator.h"
#include "tasks/EntryFields.h"

int main() {
    const EntryReader reader("data_x _chemical_name_systematic 'trans-platin\\b'");
    const Field ids[] = {field_of(LMRFieldNames::compound_name)};
    const EntryFields fields(reader[0], ids, "platin");
    Html5RichTextGenerator generator;
    std::cout << fields.fields.at(0).item.mark_up_text(generator) << '\n';
}
