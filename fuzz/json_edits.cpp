// Edits as JSON, and a CIF file that they are done to.
#include <algorithm>
#include <nlohmann/json.hpp>

#include "entries/EditSession.h"
#include "fuzz/Input.h"
#include "tasks/EntryEditor.h"
#include "tasks/UnknownField.h"
#include "tasks/edits_in_json.h"

namespace {

/// Edits of an entry as `show` writes entries, with what does not count.
std::string in_json(const std::vector<EntryEdit>& edits) {
    nlohmann::ordered_json json = nlohmann::json::array();
    for (const EntryEdit& edit : edits) {
        nlohmann::ordered_json& entry = json.emplace_back();
        entry["version"] = 1;
        entry["fields"] = nlohmann::json::array();
        for (const EntryEdit::FieldText& field_text : edit.fields) {
            entry["fields"].push_back({{"group", {"label", field_text.text}},
                                       {"label", field_text.field->label},
                                       {"text", field_text.text}});
        }
        entry["block"] = edit.block;
        entry["file"] = edit.file;
    }
    return json.dump(1, '\t', false, nlohmann::json::error_handler_t::replace);
}

std::string told(const std::vector<EntryEdit>& edits) {
    std::string text;
    for (const EntryEdit& edit : edits) {
        text.append(edit.file).append("\n").append(edit.block).append("\n");
        for (const EntryEdit::FieldText& field_text : edit.fields) {
            text.append(field_text.field->label).append("\n").append(field_text.text).append("\n");
        }
    }
    return text;
}

/// The edits that JSON tells; or texts for fields, each behind a byte that is not 0.
std::vector<EntryEdit> edits_of(Input& input) {
    if (input.byte() != 0) {
        const std::string json = input.text();
        try {
            return edits_in_json(json);
        } catch (const EditsError& error) {
            require(std::string_view(error.what()).find('\n') == std::string::npos,
                    "what is wrong is said in a line", error.what());
        } catch (const UnknownField&) {
        }
        return {};
    }
    EntryEdit edit{"a.cif", "a", {}};
    while (const unsigned int number = input.byte()) {
        edit.fields.push_back({&fields()[number % fields().size()], as_in_json(input.text())});
    }
    return {edit};
}

class Edited {
public:
    explicit Edited(const std::string& cif) : session_(cif) {}

    std::size_t size() const { return session_.entries().size(); }
    std::string text(std::size_t index, const Field& field) const {
        return text_of(session_.entries()[index], field).text;
    }

    /// Whether there was nothing to refuse.
    bool update(std::size_t index, const Field& field, const std::string& text) {
        EntryEditor editor(session_.entries());
        editor.update(index, field, text);
        const std::vector<Problem> problems = editor.problems();
        const bool good = std::none_of(
            problems.begin(), problems.end(),
            [](const Problem& problem) { return problem.level == Problem::Level::error; });
        const Splices splices = editor.splices();
        require(good || splices.empty(), "what is refused changes nothing", text);
        require(editor.first_change().has_value() == !splices.empty(), "a change is told", text);
        session_.apply(splices);  // throws where it is no CIF file
        return good;
    }

    void undo_all() {
        while (session_.undo()) {
        }
        require(!session_.is_changed(), "what is undone is as it was", session_.bytes());
    }

    /// What all fields say already changes nothing, as it is or as JSON has it.
    void update_with_same() {
        const std::string before = session_.bytes();
        for (std::size_t i = 0; i < size(); ++i) {
            EntryEditor editor(session_.entries());
            const CifEntry entry = session_.entries()[i];
            for (const Field& field : fields()) {
                const std::string now = text_of(entry, field).text;
                editor.update(i, field, now);
                editor.update(i, field, as_in_json(now));
            }
            require(editor.splices().empty() && editor.problems().empty(),
                    "what is said already changes nothing", before);
        }
    }

    const std::string& bytes() const { return session_.bytes(); }

private:
    EditSession session_;
};

void check_edits(const std::vector<EntryEdit>& edits, Edited& file) {
    if (file.size() == 0) return;
    for (const EntryEdit& edit : edits) {
        const std::size_t index = edit.block.size() % file.size();
        for (const EntryEdit::FieldText& wanted : edit.fields) {
            const Field& field = *wanted.field;
            const std::string was = file.bytes();
            // Z' is computed, and not known before Z is.
            const bool is_known =
                std::string_view(field.label) != "Z, Z'" || !file.text(index, field).empty();
            if (!file.update(index, field, wanted.text)) continue;
            const std::string seen = std::string(field.label) + ": " + wanted.text + "\nin\n" + was;
            const std::string once = file.bytes();
            require(file.update(index, field, wanted.text) || !is_known,
                    "what was done can be done", seen);
            require(file.bytes() == once, "what was done is done",
                    std::string(seen)
                        .append("\nfirst\n")
                        .append(once)
                        .append("\nthen\n")
                        .append(file.bytes()));
            if (wanted.text.empty() && once != was) {  // else it was the name of the block
                require(file.text(index, field).empty(), "what is taken away is gone", seen);
            }
        }
    }
    file.update_with_same();
    file.undo_all();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const std::vector<EntryEdit> edits = edits_of(input);
    const std::string json = in_json(edits);
    require(told(edits_in_json(json)) == told(edits), "edits come back from JSON", json);
    std::optional<Edited> file;
    try {
        file.emplace(input.rest());
    } catch (const CifError&) {
        return 0;
    }
    check_edits(edits, *file);
    return 0;
}
