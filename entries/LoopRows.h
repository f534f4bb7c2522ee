#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "entries/CifBytes.h"
#include "entries/CifDocument.h"
#include "entries/Splice.h"

/// Whether a value would begin a text field if it stood at the beginning of a line.
bool begins_with_bare_semicolon(const CifValue& value);

/// The rows of a loop in its bytes.
class LoopRows {
public:
    LoopRows(const CifItem& item, const CifBytes& bytes, CifBytes::Values& values)
        : item_(item), bytes_(bytes), values_(values) {}

    std::size_t begin(std::size_t row) const { return bytes_.begin_of(item_.in_row(row, 0).raw); }
    std::size_t end(std::size_t row) const {
        return bytes_.end_of(item_.in_row(row, item_.columns() - 1).raw);
    }
    /// Behind the comment that follows in its line.
    std::size_t behind(std::size_t row) const { return bytes_.behind_comment(end(row)); }
    std::string_view indent(std::size_t row) const { return bytes_.indent_before(begin(row)); }

    /// The bytes of a row with what replaces its values, which is taken.
    std::string taken(std::size_t row);
    /// Appends what makes a new row of one, of which the comments stay.
    void replace(std::size_t row, const std::string& by, Splices& splices);
    /// Appends what removes a row; one that is moved takes its comments along. `next` is where what
    /// is removed behind it begins, and becomes where this does.
    void remove(std::size_t row, bool is_moved, std::size_t& next, Splices& splices);

private:
    void take_values(std::size_t row, Splices* taken);
    std::string comments_in(std::size_t row) const;

    const CifItem& item_;
    const CifBytes& bytes_;
    CifBytes::Values& values_;
};
