#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/EditBatch.h"
#include "cli/Places.h"
#include "tasks/Field.h"
#include "tasks/Source.h"
#include "tasks/edits_in_json.h"

class EntryEditor;

/// What a user wants fields to say: one field of all files, or what a file of edits tells.
struct EditRequest {
    std::optional<Field> field;
    std::optional<std::string> text;  ///< None: nothing.
    std::optional<std::string> old;   ///< What the text shall replace; none: all.
    const Source* from = nullptr;     ///< The kind of the text; null: that of the field.
    std::string block;                ///< Of the entry; empty: the only one, or with `old` each.

    /// The edits of each file, where a file tells them.
    std::vector<std::vector<EntryEdit>> edits;

    /// Reads the edits from a file and returns the files that they name, each once. Throws
    /// InputError.
    std::vector<Place> read_edits(const std::string& path);

    /// What is to be done to file number `place`; for several threads at a time.
    FileChange change_of(std::size_t place, const EntryReader& entries) const;

private:
    void change_entry(std::size_t entry, EntryEditor& editor) const;
};

/// The place of a file behind all links, or the path where there is none: by it a file is known,
/// however it is named.
std::string place_behind_links(const std::string& path);
