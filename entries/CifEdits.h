#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "entries/CifDocument.h"
#include "entries/Splice.h"

/// Changes of the values of a document, gathered one by one and written as changes of its bytes, of
/// which nothing else becomes another. Each value that was not named stays as it is, to the byte.
class CifEdits {
public:
    /// What is said of a value: a text, or none, which is written "?".
    using Text = std::optional<std::string>;
    /// A row of a loop: one that is there, with the values of some columns replaced, or a new one,
    /// whose other columns are "?".
    struct Row {
        std::optional<std::size_t> old;  ///< None: a new one.
        std::vector<std::pair<const CifItem*, Text>> values{};
    };

    /// The document and its bytes must live on.
    explicit CifEdits(const CifDocument& document) : document_(document) {}

    /// Replaces value `row` of an item, which is below its size; a text that it has already
    /// changes nothing. Throws UnwritableText, as do the others, and then nothing is changed.
    void set(const CifItem& item, std::size_t row, const Text& text);
    /// Adds an item that the block lacks behind the last of its category, else at the block's end,
    /// in the style of its neighbours.
    void add(std::size_t block, std::string_view tag, const std::string& text);
    /// Makes these the rows of the loop of an item, or of an item that is in none a loop. Rows of
    /// the loop that are not named are removed, with all their columns.
    void set_rows(const CifItem& item, const std::vector<Row>& rows);

    bool empty() const;
    /// What is to be done to the bytes.
    Splices splices() const;

private:
    const CifDocument& document_;
};
