#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entries/BlockReader.h"
#include "entries/CifEdits.h"
#include "entries/EntryReader.h"
#include "entries/field_items.h"

/// What the editing of a field needs of its entry, and the changes that come of it.
class EditedEntry {
public:
    /// Of a value; none: "?".
    using Text = std::optional<std::string>;

    /// Entry `index` of some, whose changes are added to `edits`; both must live on.
    EditedEntry(const EntryReader& entries, std::size_t index, CifEdits& edits);

    /// Its values.
    BlockReader& block() { return block_; }
    /// Whether its file is one of CIF 2.
    bool is_version_2() const { return entries_.document().is_version_2(); }
    /// The text that the entry has of a field. Reads all of it.
    std::string shown(std::string_view label) const;

    /// What an item has to say for a part to be `text`. Throws FieldRefused where it cannot, with
    /// the form of a text of several parts.
    std::string value_of(const FieldPart& part, const std::string& text,
                         const FieldForm* form = nullptr) const;
    /// Replaces one value.
    void set(const BlockReader::Value& value, const Text& text);
    /// Replaces the first value of the first of the tags that has one, or gives one of the items a
    /// value that has none, or adds one. No text: all that the tags have is gone.
    void set(Tags tags, const Text& text);

    /// The block of what was changed, if it is not the entry's own.
    std::optional<std::size_t> changed_common_block() const { return changed_common_block_; }

    /// What a list has to become: an old value, with another text or as it is, or a new one.
    struct Member {
        std::optional<std::size_t> old{};  ///< Which of the old ones.
        Text text{};                       ///< None: it stays as it is.
    };
    /// All values that have a text, in the order of the tags.
    std::vector<BlockReader::Value> values(Tags tags);
    /// Makes a list of values of some tags another: values are replaced, or rows of a loop are
    /// moved, added and removed. Throws FieldRefused where the items cannot have so many values.
    void set_list(Tags tags, const std::vector<BlockReader::Value>& old,
                  const std::vector<Member>& wanted);

private:
    /// The edits, of which the next is of this item.
    CifEdits& edits_of(const CifItem& item);
    /// The tag in the style of the block's own: "_cell.length_a" beside "_cell.length_b".
    std::string in_style(std::string_view tag) const;

    const EntryReader& entries_;
    std::size_t index_;
    BlockReader block_;
    CifEdits& edits_;
    std::optional<std::size_t> changed_common_block_;
};

/// The texts between separators; one of `old` counts whole, separators and all.
std::vector<std::string> split_list(std::string_view text, std::string_view separator,
                                    const std::vector<std::string>& old);
/// Throws FieldRefused: "expected WHAT, not 'TEXT'".
[[noreturn]] void refuse(const std::string& expected, std::string_view text);
/// What is the same of two texts of which one may have become the other; empty: nothing.
using TextKey = std::function<std::string(const std::string& text)>;
/// Which text of `old` each of `wanted` is: an equal one, or else, with another text, one with the
/// same key, the first key first, or one that is gone from the same place. O(n log n).
std::vector<EditedEntry::Member> aligned(const std::vector<std::string>& old,
                                         const std::vector<std::string>& wanted,
                                         const std::vector<TextKey>& keys = {});

// Each makes the field that its name says another; texts are in the form of the field, and none
// throws anything but FieldRefused, before it changes anything.

void edit_parts(EditedEntry& entry, const FieldItems& field, const std::string& text);
void edit_cell_volume(EditedEntry& entry, const FieldItems& field, const std::string& text);
void edit_space_group(EditedEntry& entry, const FieldItems& field, const std::string& text);
void edit_z(EditedEntry& entry, const FieldItems& field, const std::string& text);
/// Names between semicolons, or numbers between commas.
/// @{
void edit_synonyms(EditedEntry& entry, const FieldItems& field, const std::string& text);
void edit_wavelengths(EditedEntry& entry, const FieldItems& field, const std::string& text);
/// @}
void edit_authors(EditedEntry& entry, const FieldItems& field, const std::string& text);
void edit_cross_references(EditedEntry& entry, const FieldItems& field, const std::string& text);
void edit_depositions(EditedEntry& entry, const FieldItems& field, const std::string& text);
