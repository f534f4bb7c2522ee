#pragma once

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <vector>

#include "entries/CifEdits.h"
#include "entries/EntryReader.h"
#include "tasks/Field.h"
#include "tasks/Source.h"

/// Makes fields of a file's entries say what a user wants. What cannot be done becomes a problem,
/// and the other edits go on.
class EntryEditor {
public:
    /// The entries must live on.
    explicit EntryEditor(const EntryReader& entries)
        : entries_(entries), edits_(entries.document()) {}

    /// Makes a field say `text`, which is of kind `from`; null: as pasted from a page where the
    /// field has styles, else in the field's own form. An empty text takes away what the field
    /// says.
    void set(std::size_t index, const Field& field, const std::string& text, const Source* from);
    /// Likewise, for a text in the field's own form or with the codes of CIF text. One that the
    /// field has already changes nothing.
    void update(std::size_t index, const Field& field, const std::string& text);
    /// Replaces `old` wherever the field shows it, or else wherever it stands in the field's text,
    /// and then `text` is as it stands there, too, unless its kind is told. A field without it
    /// stays as it is.
    void replace(std::size_t index, const Field& field, const std::string& old,
                 const std::string& text, const Source* from);

    /// What is to be done to the bytes of the file.
    Splices splices() const { return edits_.splices(); }
    const std::vector<Problem>& problems() const { return problems_; }

private:
    const CifEntry& entry(std::size_t index);
    /// Does an edit of a field; where it throws, that alone is what there is to say of it.
    template <class Edit>
    void attempt(std::size_t index, const Field& field, const Edit& edit);
    std::string in_field(std::size_t index, const Field& field, const std::string& text,
                         const Source* from);
    void edit(std::size_t index, const Field& field, const std::string& text);
    void add(std::size_t index, const Field& field, std::vector<Problem> problems);

    const EntryReader& entries_;
    CifEdits edits_;
    std::optional<std::size_t> index_;  // of the entry that was read last
    std::optional<CifEntry> entry_;
    std::vector<Problem> problems_;
};
