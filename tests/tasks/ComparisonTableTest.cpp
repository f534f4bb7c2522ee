#include <gtest/gtest.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "comparison/TextComparison.h"
#include "markup/RichTextGenerator.h"
#include "markup/RichTextTarget.h"
#include "tasks/DifferenceMarks.h"
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

/// As plain text has it.
std::string marked(const TextItem& item, const std::vector<Finding>& findings,
                   DifferenceMarks::Side side) {
    const RichTextTarget& target = rich_text_target_for(RichTextTarget::Use::plain_terminal);
    return DifferenceMarks(target)
        .marked(item, findings, side)
        .mark_up_text(*target.make_generator());
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
    result.left_marked = marked(left, comparison.findings, DifferenceMarks::left);
    result.right_marked = marked(right, comparison.findings, DifferenceMarks::right);
    return result;
}

/// The page's part that shows the table, a table for each field.
std::string as_page(const std::vector<Row>& rows) {
    std::string page, field;
    for (const Row& row : rows) {
        if (row.field != field) {
            page.append("\n### ").append(row.field).append("\n\n");
            page += "| left | right | verdict | reasons |\n| --- | --- | --- | --- |\n";
            field = row.field;
        }
        page.append("| `").append(row.left_marked).append("` | `").append(row.right_marked);
        page.append("` | ").append(row.verdict).append(" | ").append(row.reasons).append(" |\n");
    }
    return page;
}

}  // namespace

// Each was read by eye: a row that changes is a judgement that changes.
TEST(ComparisonTable, HoldsAndIsTheOneOfThePage) {
    const std::vector<Row> rows = rows_of(COMPARISONS);
    EXPECT_GE(rows.size(), 80U);
    std::string anew;
    for (const Row& row : rows) {
        const Row now = compared(row);
        EXPECT_EQ(now.verdict, row.verdict) << row.left << " / " << row.right;
        EXPECT_EQ(now.reasons, row.reasons) << row.left << " / " << row.right;
        EXPECT_EQ(now.left_marked, row.left_marked);
        EXPECT_EQ(now.right_marked, row.right_marked);
        for (const std::string& column : {now.field, now.source, now.left, now.right, now.verdict,
                                          now.reasons, now.left_marked, now.right_marked}) {
            anew.append(column) += '\t';
        }
        anew.back() = '\n';
    }
    std::ifstream file(COMPARISON_PAGE);
    const std::string page{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(page.ends_with(as_page(rows))) << "It should end with:\n" << as_page(rows);
    if (HasFailure()) std::cout << "The table as it would be:\n" << anew;
}
