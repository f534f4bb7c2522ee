#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entries/CifDocument.h"
#include "entries/CifRow.h"
#include "entries/Splice.h"
#include "entries/written_value.h"

/// Changes of the values of a document, gathered one by one and written as changes of its bytes, of
/// which nothing else becomes another. Each value that was not named stays as it is, to the byte,
/// and so do comments.
class CifEdits {
public:
    /// The document and its bytes must live on.
    explicit CifEdits(const CifDocument& document) : document_(document), bytes_(document) {}

    /// Replaces value `row` of an item, which is below its size; none is written "?". Of several
    /// texts the last counts, and one that it has already changes nothing. Throws UnwritableText,
    /// as do the others, and then nothing is changed.
    void set(const CifItem& item, std::size_t row, const std::optional<std::string>& text);
    /// Adds an item that the block lacks behind the last of its category, else at the block's end,
    /// in the style of its neighbours. Of several texts the last counts. O(n) for n items of the
    /// block and those that were added.
    void add(std::size_t block, std::string_view tag, const std::string& text);
    /// Likewise one with a value or more, several in a loop.
    void add(std::size_t block, std::string_view tag, const std::vector<std::string>& texts);
    /// Makes these the rows of the loop of an item, and of an item that is in no loop one where
    /// there are several. Each old row is named once at most; those that are not are removed, with
    /// all their columns. Of several calls for a loop the last counts.
    void set_rows(const CifItem& item, std::vector<CifRow> rows);

    bool empty() const { return splices().empty(); }
    /// What is to be done to the bytes. O(n log n) for n changes and the bytes around them.
    Splices splices() const;

private:
    struct Loop {
        const CifItem* item;
        std::vector<CifRow> rows;
    };
    struct Addition {
        std::size_t at;
        std::string tag, text;
    };
    using Additions = std::vector<Addition>;

    /// What becomes of some values: the bytes of those that are another, and those that stay.
    struct Changes {
        CifBytes::Values values;
        std::vector<CifBytes::Values::key_type> same;
    };
    void write(const CifItem& item, std::size_t row, const std::optional<std::string>& text,
               Changes& changes) const;
    void take(Changes changes);

    /// The item behind which one is to be added.
    struct Neighbour {
        std::size_t end;
        std::size_t words_in_common;
    };
    Neighbour neighbour_of_new(std::size_t block, std::string_view tag) const;
    void keep(std::size_t block, Addition added, const Neighbour& item);
    const CifItem& last_column(const CifItem& item) const;

    const CifDocument& document_;
    CifBytes bytes_;
    CifBytes::Values values_;
    std::map<const char*, Loop> loops_;           // by their origins
    std::map<std::size_t, Additions> additions_;  // by block, each as they shall stand
};
