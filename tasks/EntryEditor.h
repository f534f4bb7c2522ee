#pragma once

#include <cstddef>
#include <exception>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "entries/CifEdits.h"
#include "entries/EntryReader.h"
#include "tasks/Field.h"
#include "tasks/Source.h"

/// Makes fields of a file's entries say what a user wants. What cannot be done becomes a problem,
/// and the other edits go on. Only std::bad_alloc comes out, and leaves edits that are of no use.
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
    /// With a note for each field that changes for entries of which no edit was asked for.
    std::vector<Problem> problems() const;
    /// The first field that an edit changes, and where it stands if entries have it in common.
    const std::optional<Problem>& first_change() const { return first_change_; }

private:
    const CifEntry& entry(std::size_t index);
    /// Does an edit of a field; where it throws, that alone is what there is to say of it.
    template <class Edit>
    void attempt(std::size_t index, const Field& field, const Edit& edit);
    std::string in_field(std::size_t index, const Field& field, const std::string& text,
                         const Source* from);
    void edit(std::size_t index, const Field& field, const std::string& text);
    Problem problem_of(std::size_t index, const Field& field) const;
    void add(std::size_t index, const Field& field, std::vector<Problem> problems);

    /// An edit of what entries have in common.
    struct Shared {
        std::size_t block;
        std::vector<std::size_t> entries;  // those that were edited
    };
    using SharedFields = std::map<std::pair<const CifBlock*, const Field*>, Shared>;

    const EntryReader& entries_;
    CifEdits edits_;
    std::optional<std::size_t> index_;  // of the entry that was read last
    std::optional<CifEntry> entry_;
    std::vector<Problem> problems_;
    SharedFields shared_;
    std::optional<Problem> first_change_;
};
