#include <gtest/gtest.h>

#include <array>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "comparison/TextComparison.h"
#include "markup/DisplayedText.h"
#include "tasks/EntryComparison.h"
#include "tasks/View.h"
#include "tasks/row_named.h"

namespace {

/// The columns of the table.
struct Row {
    std::string field, source, left, right, verdict, reasons, left_marked, right_marked;
};

std::vector<Row> rows_of(const std::string& path) {
    std::vector<Row> rows;
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::istringstream columns(line);
        Row& row = rows.emplace_back();
        for (std::string* column : {&row.field, &row.source, &row.left, &row.right, &row.verdict,
                                    &row.reasons, &row.left_marked, &row.right_marked}) {
            std::getline(columns, *column, '\t');
        }
    }
    return rows;
}

/// The text as it is shown, with signs around what differs.
std::string marked(const TextItem& item, const std::vector<Finding>& findings,
                   const StringSlice Finding::*side, const char* before, const char* behind) {
    std::vector<StringSlice> ranges;
    for (const Finding& finding : findings) {
        if (!(finding.*side).empty()) ranges.push_back(finding.*side);
    }
    std::sort(ranges.begin(), ranges.end());
    const DisplayedText displayed(item);
    std::string result;
    unsigned int end = 0;
    for (const StringSlice& range : ranges) {
        const StringSlice shown = displayed.shown(range, DisplayedText::bytes);
        result.append(displayed.text(), end, shown.from() - end).append(before);
        result.append(displayed.text(), shown.from(), shown.length()).append(behind);
        end = shown.to();
    }
    return result.append(displayed.text(), end, std::string::npos);
}

Row compared(const Row& row) {
    const Field& field = field_named(row.field);
    const Source& source = row.source.empty() ? *field.source : *row_named(sources(), row.source);
    const TextItem left(source.make_finder(), row.left), right(source.make_finder(), row.right);
    const ComparedText left_side(left), right_side(right);
    const TextComparison comparison(left_side, right_side, *field.comparison,
                                    ComparisonSettings().policy_of(field));
    Row result = row;
    result.verdict = name_of(comparison.verdict);
    result.reasons.clear();
    for (const Finding& finding : comparison.findings) {
        if (!result.reasons.empty()) result.reasons += ", ";
        result.reasons += reason_of(finding).name;
    }
    result.left_marked = marked(left, comparison.findings, &Finding::left, "[-", "-]");
    result.right_marked = marked(right, comparison.findings, &Finding::right, "{+", "+}");
    return result;
}

}  // namespace

// Each was read by eye: a row that changes is a judgement that changes.
TEST(ComparisonTable, Holds) {
    const std::vector<Row> rows = rows_of(COMPARISONS);
    EXPECT_GE(rows.size(), 80U);
    std::ostringstream anew;
    for (const Row& row : rows) {
        const Row now = compared(row);
        EXPECT_EQ(now.verdict, row.verdict) << row.left << " / " << row.right;
        EXPECT_EQ(now.reasons, row.reasons) << row.left << " / " << row.right;
        EXPECT_EQ(now.left_marked, row.left_marked);
        EXPECT_EQ(now.right_marked, row.right_marked);
        for (const std::string& column : {now.field, now.source, now.left, now.right, now.verdict,
                                          now.reasons, now.left_marked}) {
            anew << column << '\t';
        }
        anew << now.right_marked << '\n';
    }
    if (HasFailure()) std::cout << "The table as it would be:\n" << anew.str();
}
