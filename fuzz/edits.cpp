// A CIF file, and texts for its values: each edit does what it says, and nothing else.
#include "fuzz/EditTrial.h"
#include "fuzz/Input.h"

namespace {

EditTrial::Text text_of(Input& input) {
    const std::string text = input.text();
    return text == "?" ? EditTrial::Text() : text;
}

/// Whether gemmi reads a file otherwise than we do, who take "\r" for the end of a line and know
/// the quotes of version 2 in any file.
bool is_read_otherwise(const std::string& cif) {
    for (std::size_t at = 0; (at = cif.find('\r', at)) != cif.npos; ++at) {
        if (cif.compare(at, 2, "\r\n") != 0) return true;
    }
    const bool has_quotes = cif.find("'''") != cif.npos || cif.find("\"\"\"") != cif.npos;
    return has_quotes && cif.find("#\\#CIF_2.0") > 3;
}

std::string complaint_of_rows(EditTrial& trial, std::size_t number, Input& input) {
    const std::size_t item = number % trial.items();
    std::vector<EditTrial::Row> rows;
    for (std::size_t i = 0; i < trial.rows(item); ++i) rows.push_back({i, {}});
    for (unsigned int command = 0; (command = input.byte()) != 0;) {
        const std::size_t size = rows.size(), at = command / 4 % (size + 1);
        const auto place = rows.begin() + static_cast<std::ptrdiff_t>(at);
        if (command % 4 == 0) rows.insert(place, EditTrial::Row());
        if (at == size) continue;
        if (command % 4 == 1) rows.erase(place);
        if (command % 4 == 2) std::swap(rows[at], rows[size - 1]);
        if (command % 4 == 3) rows[at].values = {{at % trial.columns(item), text_of(input)}};
    }
    return trial.set_rows(item, rows);
}

}  // namespace

// A byte for what is done, one for where, the texts, and the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t end = bytes.rfind('\0');
    if (end == bytes.npos || is_read_otherwise(bytes.substr(end + 1))) return 0;
    Input input(data, end);
    std::string complaint;
    try {
        EditTrial trial(bytes.substr(end + 1));
        // What only our reader takes, or another one, says nothing about edits.
        if (trial.values() == 0 || !trial.readers().empty()) return 0;
        complaint = trial.same_texts();
        const unsigned int kind = input.byte(), number = input.byte();
        if (!complaint.empty()) {
            complaint.append(" by itself");
        } else if (kind % 4 == 0) {
            complaint = trial.add({number % trial.blocks(), "_added_item", input.text()});
        } else if (kind % 4 == 1) {
            complaint = complaint_of_rows(trial, number, input);
        } else {
            std::vector<EditTrial::Change> changes;
            for (std::size_t value = number; value < trial.values() && !input.at_end();) {
                changes.push_back({value, text_of(input)});
                value += 1 + input.byte() % 4;
            }
            complaint = trial.set(changes);
        }
    } catch (const CifError&) {
        return 0;
    }
    require(complaint.empty(), "an edit does what it says", complaint + "\n in\n" + bytes);
    return 0;
}
