#include <memory>
#include <string>
#include <vector>

#include "bench/growth/Case.h"
#include "entries/EntryReader.h"
#include "output/EntryPage.h"
#include "tasks/View.h"

namespace {

/// A page of all entries of a file in which `unit` stands again and again between two texts.
Case page_of(const char* name, unsigned int size, const char* head, const char* unit,
             const char* tail) {
    return {std::string("page: ").append(name), size, [=](unsigned int n) -> Operation {
                const auto bytes = std::make_shared<std::string>(head + numbered(unit, n) + tail);
                const auto reader = std::make_shared<EntryReader>(*bytes);
                return [=] {
                    static_cast<void>(bytes);
                    EntryPage page;
                    page.head("Entries");
                    for (std::size_t i = 0; i < reader->size(); ++i) {
                        const EntryFields fields((*reader)[i], ::fields());
                        page.add(page.entry("f", "b", fields.fields));
                    }
                    page.foot();
                };
            }};
}

}  // namespace

std::vector<Case> page_cases() {
    return {
        page_of("entries of one number", 200, "", "data_#\n_cod_database_code 1\n", ""),
        page_of("a long name", 2000, "data_a\n_chemical_name_systematic\n;", "\\a-F^#^ <i>&",
                "\n;\n"),
        page_of("many people", 1000, "data_a\nloop_\n_publ_author_name\n", "'Blake#, A. J.'\n", ""),
    };
}
