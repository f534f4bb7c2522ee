#pragma once

#include <algorithm>
#include <span>
#include <string_view>

/// The row of a table that has that name, or null.
template <class Row>
const Row* row_named(std::span<const Row> rows, std::string_view name) {
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const Row& candidate) { return candidate.name == name; });
    return row == rows.end() ? nullptr : &*row;
}
