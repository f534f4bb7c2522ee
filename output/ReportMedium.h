#pragma once

#include <string>
#include <string_view>

#include "markup/RichTextTarget.h"

/// How reports are written in a target that has sections, lists and tables. All strings are
/// mark-up.
struct ReportMedium {
    /// What stands before and behind an element.
    struct Around {
        const char *before, *behind;
    };
    /// A table of rows that begin with a label.
    struct Table {
        Around table, row, label;
        Around head;  ///< The cells of the first row, but for the label.
        Around cell;
        Around note;  ///< Below a row, with nothing below its label.
    };

    std::string_view name;  ///< Of the target.
    const char* cells;      ///< The target whose mark-up stands in cells of tables.
    const char* line_end;   ///< In place of those that its generator leaves in texts.
    Around title, subtitle, paragraph;
    Around list, row;  ///< A list has a row at least, with a label and a text.
    const char* behind_label;
    Around found;      ///< What was found in a row, below its text.
    const char* unit;  ///< Between a number and its unit.
    /// Mark-up that leads to an address of ASCII without brackets, quotes and blanks.
    std::string (*link)(const std::string& mark_up, const std::string& address);
    Table cell;        ///< A label, three numbers and a unit.
    Around wide_cell;  ///< In place of the three.
    Table counts;      ///< A label and five numbers.
    Table sides;       ///< A label and two texts; rows may be many and long.
};

/// The medium of a target, or null: it has none.
const ReportMedium* report_medium_of(const RichTextTarget& target);
