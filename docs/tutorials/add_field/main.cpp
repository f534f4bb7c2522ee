#include <iostream>

#include "MeltingPointSearch.h"
#include "MeltingPointStyleFinder.h"
#include "finders/TextSearchStyleFinder.h"
#include "markup/Html5RichTextGenerator.h"
#include "markup/UnicodeRichTextGenerator.h"
#include "text/TextItem.h"

int main() {
    Html5RichTextGenerator html5;
    UnicodeRichTextGenerator unicode;

    TextItem field(make_handle<MeltingPointStyleFinder>(), "Tm 411-413 K dec.");
    std::cout << field.mark_up_text(unicode) << '\n' << field.mark_up_text(html5) << '\n';

    const auto search = make_handle<MeltingPointSearch>("412-415");
    TextItem found(
        make_handle<TextSearchStyleFinder>(search, make_handle<MeltingPointStyleFinder>()));
    for (const char* text : {"Tm 411-413 K dec.", "Tm 412-415 K", "Tm 416 K", "not known"}) {
        found.set_text(text);
        std::cout << found.mark_up_text(html5) << '\n';
    }
}
