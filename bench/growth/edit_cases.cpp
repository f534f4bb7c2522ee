#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "bench/growth/Case.h"
#include "entries/CifEdits.h"
#include "entries/EditSession.h"

namespace {

constexpr char lines[] = "data_a\nloop_\n_n\n_m\n";

using Edit = void (*)(const CifDocument& document, CifEdits& edits);

/// Changes of a file whose beginning is followed by `unit` again and again, their writing included.
Case edited(const char* name, unsigned int size, const char* head, const char* unit, Edit edit) {
    return {std::string("edits: ").append(name), size, [=](unsigned int n) -> Operation {
                const auto bytes = std::make_shared<std::string>(head + numbered(unit, n));
                const auto document = std::make_shared<CifDocument>(*bytes);
                return [=] {
                    CifEdits edits(*document);
                    edit(*document, edits);
                    static_cast<void>(spliced(*bytes, edits.splices()));
                };
            }};
}

const CifItem& first_item(const CifDocument& document) { return *document.items(0)[0]; }

void set_all(const CifDocument& document, CifEdits& edits) {
    const CifItem& item = first_item(document);
    for (std::size_t row = 0; row < item.size(); ++row) edits.set(item, row, "of two words");
}

void reverse_rows(const CifDocument& document, CifEdits& edits) {
    const CifItem& item = first_item(document);
    std::vector<CifRow> rows;
    for (std::size_t row = item.size(); row-- > 0;) rows.push_back({row});
    edits.set_rows(item, std::move(rows));
}

/// Each second row is replaced by a new one.
void replace_rows(const CifDocument& document, CifEdits& edits) {
    const CifItem& item = first_item(document);
    std::vector<CifRow> rows;
    for (std::size_t row = 0; row < item.size(); ++row) {
        rows.push_back(row % 2 == 0 ? CifRow{row} : CifRow{std::nullopt, {{&item, "new"}}});
    }
    edits.set_rows(item, std::move(rows));
}

/// A value of one text of that many units, written into a text field.
Case written(const char* name, unsigned int size, const char* unit) {
    return {std::string("written: ").append(name), size, [=](unsigned int n) -> Operation {
                const std::string text = std::string(1, 'x').append(repeated(unit, n));
                return [text] {
                    const std::string value = written_value(text, CifQuoting::bare, {});
                    static_cast<void>(CifValue{value}.content());
                };
            }};
}

/// As many edits as units, done one after the other, undone and done again.
Case session() {
    return {"edits: a session", 10, [](unsigned int n) -> Operation {
                return [n, bytes = lines + numbered("#\n", 500)] {
                    EditSession session(bytes);
                    const auto at = static_cast<std::size_t>(sizeof lines - 1);
                    for (unsigned int i = 0; i < n; ++i) {
                        session.apply({{at, i % 2 == 0 ? "0" : "1", i % 2 == 0 ? "1" : "0"}});
                    }
                    while (session.undo()) continue;
                    while (session.redo()) continue;
                };
            }};
}

/// An item that each block lacks.
void add_to_each(const CifDocument& document, CifEdits& edits) {
    for (std::size_t block = 0; block < document.blocks(); ++block) edits.add(block, "_a", "new");
}

/// A loop of as many rows as there are.
void add_loop(const CifDocument& document, CifEdits& edits) {
    edits.add(0, "_a", std::vector<std::string>(first_item(document).size(), "of two words"));
}

}  // namespace

std::vector<Case> edit_cases() {
    return {
        edited("values", 1000, lines, "a# b\n", set_all),
        edited("values of one line", 2000, "data_a loop_ _n ", "# ", set_all),
        edited("rows reversed", 1000, lines, "a# b # of #\n", reverse_rows),
        edited("rows of one line reversed", 1000, "data_a loop_ _n ", "# ", reverse_rows),
        edited("rows replaced", 1000, lines, "a# 'b'\n", replace_rows),
        edited("an item added to each block", 500, "", "data_#\n_b 1\n_c 2\n", add_to_each),
        edited("a long loop added", 1000, lines, "a# b\n", add_loop),
        edited("values of many items", 1000, "data_a\n", "_tag_#   'a value' # comment\n",
               [](const CifDocument& document, CifEdits& edits) {
                   for (const CifItem* item : document.items(0)) edits.set(*item, 0, "new\ntext");
               }),
        session(),
        written("a long line", 20000, "words "),
        written("semicolons", 20000, ";"),
        written("backslashes", 20000, "\\\n"),
    };
}
