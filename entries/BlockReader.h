#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "entries/CifDocument.h"
#include "entries/CodedText.h"
#include "entries/EntryText.h"
#include "entries/Problem.h"
#include "host/CrystalStructureDatabaseEntry.h"
#include "host/UncertainValue.h"

/// Items that say the same, those to be preferred first.
using Tags = std::span<const std::string_view>;

/// A list of one.
inline Tags just(const std::string_view& tag) { return {&tag, 1}; }

/// The values of a block as the readers of an entry's parts ask for them, and the problems that
/// they find.
class BlockReader {
public:
    /// A value, and where it stands.
    struct Value {
        const CifItem* item = nullptr;  // null: there is none
        std::string text;
        std::size_t row = 0;

        explicit operator bool() const { return item != nullptr; }
    };

    /// Items that the block has no value for are those of `common`, which may be null and else must
    /// outlive this; problems of these are told only where `tells_of_common`.
    BlockReader(const CifDocument& document, std::size_t block, const CifBlock* common,
                bool tells_of_common)
        : document_(document),
          index_(block),
          block_(document.block(block)),
          common_(common),
          tells_of_common_(tells_of_common) {}

    const CifBlock& block() const { return block_; }

    /// The item with that tag, or null.
    const CifItem* item(std::string_view tag);
    /// The items of CifBlock::find_all(), those of the block first.
    CifBlock::Items items(std::string_view prefix);
    /// The texts of an item, one a row; none where there is no such item.
    std::vector<std::string> texts(std::string_view tag);
    /// The first value that is one, of the first of the tags that has any.
    Value first_value(Tags tags);
    /// Its text, on one line.
    std::string first_text(Tags tags);
    /// Its text on one line, in UTF-8, of which doubts about codes are noted.
    std::string first_decoded_text(Tags tags);
    /// A text of a value on one line, likewise.
    std::string decoded(const Value& value);
    /// The number that it is; a problem where it is none.
    std::optional<UncertainValue> number(Tags tags);

    /// Adds a problem of the block that shows at a place of the file or at an item, or of the item
    /// itself. `code` is what checks call it.
    /// @{
    Problem& add_block_problem(const char* place, const char* code, std::string what);
    Problem& add_block_problem(const CifItem& at, const char* code, std::string what);
    Problem& add_problem(const CifItem& item, const char* code, std::string what);
    /// @}
    /// Likewise of a value, which belongs to what is wrong, or is not what was expected.
    /// @{
    Problem& add_problem(const Value& value, const char* code, std::string what);
    Problem& add_unexpected(const Value& value, const char* code, std::string expected);
    /// @}
    /// Adds the doubts about the codes of a value.
    void note_doubts(const Value& value, const CodedText& text);
    /// Adds a text of a field that says more than the records.
    void add_text(EntryText text) { texts_.push_back(std::move(text)); }
    /// Adds a problem for each item that has been asked for and is given again.
    void note_repetitions();
    std::vector<EntryText> take_texts() { return std::move(texts_); }
    std::vector<Problem> take_problems() { return std::move(problems_); }

private:
    const CifItem* find(std::string_view tag) const;
    void note_repetitions(const CifBlock& block);
    std::size_t offset_of(const char* place) const;
    /// Of what stands behind `before` in the text of a value on one line.
    std::size_t offset_of(const Value& value, std::string_view before) const;

    const CifDocument& document_;
    std::size_t index_;
    CifBlock block_;
    const CifBlock* common_;
    bool tells_of_common_;
    CifBlock::Items asked_for_;
    std::vector<EntryText> texts_;
    std::vector<Problem> problems_;
    Problem untold_;  // where those are written that are not told
};

// Each fills the part of an entry that its name says.

void read_texts(BlockReader& block, CrystalStructureDatabaseEntry& entry);
void read_melting_point(BlockReader& block, CrystalStructureDatabaseEntry& entry);
void read_names(BlockReader& block, CrystalStructureDatabaseEntry& entry);
void read_publication(BlockReader& block, CrystalStructureDatabaseEntry& entry);
void read_dates(BlockReader& block, CrystalStructureDatabaseEntry& entry);
/// The numbers of the entry in journals, archives and databases.
void read_numbers_elsewhere(BlockReader& block, CrystalStructureDatabaseEntry& entry);
/// The cell and its volume, which the file may give besides.
void read_cell(BlockReader& block, CrystalStructureDatabaseEntry& entry);
/// Symbol, reduced cell, Z and Z'; wants the cell to be read.
void read_space_group(BlockReader& block, CrystalStructureDatabaseEntry& entry);
void read_measurements(BlockReader& block, CrystalStructureDatabaseEntry& entry);
/// Coordinates and disorder.
void read_atoms(BlockReader& block, CrystalStructureDatabaseEntry& entry);
/// The mean uncertainty of the bonds between carbon atoms.
void read_bonds(BlockReader& block, CrystalStructureDatabaseEntry& entry);
