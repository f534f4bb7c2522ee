#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "entries/Problem.h"

/// Bytes are not a CIF file; what() says why.
class CifError : public std::runtime_error {
public:
    /// `line`, from 1, is where reading ended. The problem is what checks tell: its code, what was
    /// found where, as of quotes that do not close, and what was expected.
    CifError(unsigned long line, const std::string& reason, Problem problem)
        : std::runtime_error(reason), line_(line), problem_(std::move(problem)) {}

    unsigned long line() const { return line_; }
    const Problem& problem() const { return problem_; }

private:
    unsigned long line_;
    Problem problem_;
};

/// What sets a value off from what stands around it. Lists and tables are bare.
enum class CifQuoting { bare, single_quotes, double_quotes, triple_quotes, text_field };

/// One value as it stands in the bytes of a document.
struct CifValue {
    std::string_view raw;  ///< Quotes included; empty, behind the tag, for one without a value.

    CifQuoting quoting() const;
    /// What stands between the quotes, with lines that end with "\n"; nothing for "?" and ".", in
    /// quotes too, and for a bare ";".
    std::string text() const;
    /// Whether text() is not empty.
    bool has_text() const;
    /// Whether it is a bare "?" or ".", or is not there.
    bool is_none() const;
    /// The text that it holds, to the character, with lines that end with "\n"; the parts of lines
    /// that are folded are joined. Nothing where it is_none().
    std::string content() const;
};

/// The values of one tag of a block: one, or one a row of a loop.
class CifItem {
public:
    /// Value n of the item is number `first` + `column` + n * `stride` of `values`.
    CifItem(std::string_view tag, const char* origin, const std::vector<std::string_view>& values,
            std::size_t first, std::size_t column, std::size_t stride, std::size_t size)
        : tag_(tag),
          origin_(origin),
          values_(&values),
          first_(first),
          column_(column),
          stride_(stride),
          size_(size) {}

    /// As it stands in the bytes.
    std::string_view tag() const { return tag_; }
    /// Where the item begins: at its tag, or at the "loop_" before it.
    const char* origin() const { return origin_; }
    bool in_loop() const { return origin_ != tag_.data(); }
    /// Which column of its loop it is, from 0, and of how many.
    /// @{
    std::size_t column() const { return column_; }
    std::size_t columns() const { return stride_; }
    /// @}
    std::size_t size() const { return size_; }
    /// Whether any of the values has a text. O(n) for n values without.
    bool has_text() const;
    /// `row` is below size().
    CifValue operator[](std::size_t row) const { return in_row(row, column_); }
    /// The value of any column of its loop; `row` is below size() and `column` below columns().
    CifValue in_row(std::size_t row, std::size_t column) const {
        return {(*values_)[first_ + column + row * stride_]};
    }

private:
    std::string_view tag_;
    const char* origin_;
    const std::vector<std::string_view>* values_;
    std::size_t first_, column_, stride_, size_;
};

/// One data block of a document, which must live on.
class CifBlock {
public:
    using Items = std::vector<const CifItem*>;

    /// `items` stand in the order of the file.
    CifBlock(std::string_view name, const Items& items);

    /// "#" for a bare "data_", empty for "global_".
    std::string_view name() const { return name_; }
    /// The first item with that tag, or null. Case does not count, and either may have "." for "_".
    /// O(log m) for m items.
    const CifItem* find(std::string_view tag) const;
    /// Makes ready for many questions about prefixes. O(m log m).
    void sort_by_tags();
    /// Whether tags begin with `prefix`, likewise. O(m).
    bool has_any(std::string_view prefix) const;
    /// The items that are not in loops and whose tags begin with `prefix`, likewise, in the order
    /// of the tags; of several with one tag the first. O(m), and O(log m) and what it finds behind
    /// sort_by_tags().
    Items find_all(std::string_view prefix) const;
    /// The items whose tag an item before them has already, which CIF forbids, in the order of the
    /// file.
    Items repetitions() const;

private:
    struct Hashed {
        std::uint64_t hash;  // of the tag
        const CifItem* item;
    };

    std::string_view name_;
    // Outside save frames, by hashes, then by tags, then as in the file.
    std::vector<Hashed> items_;
    Items by_tags_;  // the same by tags; empty until they are sorted
};

/// The structure of a CIF file: blocks, items and values are places in its bytes, which the caller
/// keeps. 16 bytes a value and 64 a tag.
class CifDocument {
public:
    /// A byte order mark in front is passed over. Throws CifError.
    explicit CifDocument(std::string_view bytes);
    CifDocument(const CifDocument&) = delete;
    CifDocument& operator=(const CifDocument&) = delete;

    std::size_t blocks() const { return contents_.blocks.size(); }
    /// `index` is below blocks(). O(m log m) for m items.
    CifBlock block(std::size_t index) const;
    /// The blocks from `first` to `last`, that excluded, as if they were one with the first's name:
    /// the items with texts. As many entries may have them in common, there are at most 10,000, and
    /// those with more values than that are left out.
    CifBlock common_block(std::size_t first, std::size_t last) const;
    /// The block in which a place of the bytes is that stands behind a block's heading.
    std::size_t block_at(const char* place) const;
    /// Whether a place of the bytes stands so, and not before the first block.
    bool is_in_block(const char* place) const { return place >= contents_.blocks.front().heading; }
    /// As that of the CifBlock. `index` is below blocks().
    std::string_view name_of(std::size_t index) const { return contents_.blocks[index].name; }

    /// Something in a block that CIF allows, and may not be what was meant.
    struct Doubt {
        const char* place;
        const char* what;
        const char* code;  ///< What checks call it.
    };
    /// Those of a block, in the order of the file; `index` is below blocks().
    std::vector<Doubt> doubts(std::size_t index) const;

    /// The line, from 1, of a place in the bytes. The first question is O(n) for n bytes, each
    /// later one O(log n).
    unsigned long line_of(const char* place) const;
    /// The byte of its line, from 1. A byte order mark counts.
    unsigned long column_of(const char* place) const;

    /// All of them.
    std::string_view bytes() const { return bytes_; }
    /// Whether it says that it is of version 2 of CIF.
    bool is_version_2() const;
    /// Where its name stands, or what stands for one; `index` is below blocks().
    const char* heading_of(std::size_t index) const { return contents_.blocks[index].heading; }
    /// Where the heading of a block ends; `index` is below blocks().
    const char* end_of_heading(std::size_t index) const;
    /// The items of a block, outside save frames, in the order of the file; `index` is below
    /// blocks().
    CifBlock::Items items(std::size_t index) const;

    /// What the grammar finds, in the order of the file.
    struct Contents {
        struct Block {
            std::string_view name;
            const char* heading;
            std::size_t first_item, first_doubt;
        };

        std::vector<Block> blocks;
        std::vector<CifItem> items;
        std::vector<std::string_view> values;
        std::vector<Doubt> doubts;
    };

private:
    /// One past the last item of a block.
    std::size_t end_of_items(std::size_t block) const;

    std::string_view bytes_;
    Contents contents_;
    mutable std::vector<const char*> line_ends_;  // found when they are asked for
};
