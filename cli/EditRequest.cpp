#include "cli/EditRequest.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <map>
#include <system_error>
#include <utility>

#include "cli/InputFile.h"
#include "cli/options.h"
#include "tasks/EntryEditor.h"
#include "tasks/EntryNames.h"

namespace {

std::string list_of(const std::vector<std::string_view>& names) {
    constexpr std::size_t most = 10;  // in a line
    std::string list;
    for (std::size_t i = 0; i < std::min(names.size(), most); ++i) {
        list.append(i == 0 ? "" : ", ").append(names[i]);
    }
    return names.size() > most ? list + ", ..." : list;
}

/// Chooses entries of a file by the names of their blocks.
class EntryChoice {
public:
    /// What is wrong goes to the problems.
    EntryChoice(const EntryReader& entries, std::vector<Problem>& problems)
        : entries_(entries), names_(entries), problems_(problems) {}

    /// None where there are several.
    std::optional<std::size_t> only() {
        if (names_.all().size() == 1) return 0;
        refuse("has several entries; --entry chooses one of " + list_of(names_.all()));
        return std::nullopt;
    }
    /// None where no block has that name, or not as many as the edits speak of. Of several with one
    /// name it is the next each time.
    std::optional<std::size_t> named(const std::string& name, std::size_t times) {
        const std::vector<std::size_t> found = names_.named(name);
        if (found.size() == 1) return found.front();
        if (found.empty()) {
            refuse(is_common(name)
                       ? "'" + name +
                             "' is no entry: it holds what entries have in common; choose one of " +
                             list_of(names_.all())
                       : no_such("block", name, nearest_word(name, names_.all()), ""));
        } else if (found.size() != times) {
            refuse(std::to_string(found.size()) + " blocks have the name '" + name + "'");
        } else {
            return found[chosen_[name]++];
        }
        return std::nullopt;
    }

private:
    /// Whether a block that is no entry has that name.
    bool is_common(const std::string& name) const {
        const CifDocument& document = entries_.document();
        for (std::size_t i = 0; i < document.blocks(); ++i) {
            if (document.name_of(i) == name) return true;
        }
        return false;
    }
    void refuse(std::string what) { problems_.emplace_back().what = std::move(what); }

    const EntryReader& entries_;
    EntryNames names_;
    std::vector<Problem>& problems_;
    std::map<std::string, std::size_t> chosen_;  // how often, of several blocks with one name
};

}  // namespace

std::vector<Place> EditRequest::read_edits(const std::string& path) {
    InputFile file(path);
    std::string json;
    while (file.read(json)) {
    }
    std::vector<Place> files;
    std::map<std::string, std::size_t> known;
    try {
        for (EntryEdit& edit : edits_in_json(json)) {
            const auto [found, is_new] = known.emplace(place_behind_links(edit.file), files.size());
            if (is_new) files.push_back({edit.file, ""});
            edits.resize(files.size());
            edits[found->second].push_back(std::move(edit));
        }
    } catch (const EditsError& error) {
        throw InputError(file.name() + ": " + error.what());
    } catch (const UnknownField& unknown) {
        throw InputError(file.name() + ": " +
                         no_such("field", unknown.what(), unknown.nearest(), ""));
    }
    return files;
}

FileChange EditRequest::change_of(std::size_t place, const EntryReader& entries) const {
    EntryEditor editor(entries);
    FileChange change;
    EntryChoice choice(entries, change.problems);
    if (!edits.empty()) {
        change.is_lasting = true;
        std::map<std::string, std::size_t> times;
        for (const EntryEdit& edit : edits[place]) ++times[edit.block];
        for (const EntryEdit& edit : edits[place]) {
            const auto entry = choice.named(edit.block, times[edit.block]);
            for (const EntryEdit::FieldText& field_text : edit.fields) {
                if (entry) editor.update(*entry, *field_text.field, field_text.text);
            }
        }
    } else if (old && block.empty()) {
        for (std::size_t i = 0; i < entries.size(); ++i) change_entry(i, editor);
    } else {
        const auto entry = block.empty() ? choice.only() : choice.named(block, 1);
        if (entry) change_entry(*entry, editor);
    }
    std::vector<Problem> problems = editor.problems();
    std::move(problems.begin(), problems.end(), std::back_inserter(change.problems));
    change.first = editor.first_change();
    change.splices = editor.splices();
    return change;
}

void EditRequest::change_entry(std::size_t entry, EntryEditor& editor) const {
    if (old) {
        editor.replace(entry, *field, *old, *text, from);
    } else {
        editor.set(entry, *field, text.value_or(""), from);
    }
}

std::string place_behind_links(const std::string& path) {
    std::error_code error;
    std::string place = std::filesystem::canonical(path, error);
    return error ? path : place;
}
