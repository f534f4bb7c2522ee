#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "entries/CifBytes.h"
#include "entries/CifDocument.h"
#include "entries/Splice.h"

/// A row that a loop shall have: one that it has, with the values of some columns replaced, or a
/// new one, whose other columns are "?".
struct CifRow {
    std::optional<std::size_t> old{};  ///< None: a new one.
    std::vector<std::pair<const CifItem*, std::optional<std::string>>> values{};
};

/// The bytes of a new row of the loop of an item, in columns that are quoted as in its first row;
/// nothing stands before it in its line but blanks of that number. Throws UnwritableText.
std::string new_row(const CifItem& item, const CifRow& row, const CifBytes& bytes,
                    std::size_t indent);

/// Appends what makes these the rows of the loop of an item, the last one where it has no rows: as
/// many as possible stay where they are, others are moved with the comment behind them. Of
/// `values`, those of rows that stay stay, and others are taken. Comments stay.
void append_rows(const CifItem& item, const std::vector<CifRow>& rows, const CifBytes& bytes,
                 CifBytes::Values& values, Splices& splices);

/// Appends what makes a loop of an item that is in none.
void append_new_loop(const CifItem& item, const std::vector<CifRow>& rows, const CifBytes& bytes,
                     CifBytes::Values& values, Splices& splices);
