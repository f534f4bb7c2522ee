#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "checks/check_entries.h"
#include "entries/Splice.h"

using testing::Contains;
using testing::Not;

namespace {

CheckFindings findings_in(const std::string& bytes) {
    try {
        const EntryReader entries(bytes);
        return check_entries(entries);
    } catch (const CifError& error) {
        return {finding_of(error)};
    }
}

std::vector<std::string> codes_of(const CheckFindings& findings) {
    std::vector<std::string> codes;
    for (const CheckFinding& finding : findings) codes.emplace_back(finding.code->code);
    return codes;
}

/// The bytes with the repairs of that code, one after the other, as long as there are any.
std::string repaired(std::string bytes, const char* code) {
    for (int round = 0; round < 10; ++round) {
        const EntryReader entries(bytes);
        const CheckCode* const row = check_code(code);
        const CheckFindings findings =
            check_entries(entries, WantedChecks(Problem::Level::note, {row}, {}));
        const Splices repairs = repairs_of(findings);
        if (repairs.empty()) break;
        bytes = spliced(bytes, repairs);
    }
    return bytes;
}

}  // namespace

TEST(CheckCodes, EachHasAnExampleThatRaisesItAndANearMissThatDoesNot) {
    for (const CheckCode& code : check_codes()) {
        SCOPED_TRACE(code.code);
        ASSERT_TRUE(code.example && code.near_miss);
        const std::string example = file_of_example(code.example);
        const CheckFindings findings = findings_in(example);
        EXPECT_THAT(codes_of(findings), Contains(code.code));
        EXPECT_THAT(codes_of(findings_in(file_of_example(code.near_miss))),
                    Not(Contains(code.code)));
        const bool has_repair = std::any_of(
            findings.begin(), findings.end(),
            [&](const CheckFinding& finding) { return finding.code == &code && finding.repair; });
        if (!has_repair) continue;
        EXPECT_THAT(codes_of(findings_in(repaired(example, code.code))), Not(Contains(code.code)));
    }
}

TEST(CheckCodes, EachHasANameOfItsOwnAndIsTold) {
    const std::span<const CheckCode> codes = check_codes();
    for (const CheckCode& code : codes) {
        SCOPED_TRACE(code.code);
        EXPECT_EQ(check_code(code.code), &code);
        EXPECT_FALSE(std::string(code.summary).ends_with('.'));
        EXPECT_TRUE(std::string(code.explanation).ends_with('.'));
    }
}

TEST(CheckEntries, TellsWhereEachFaultStands) {
    const struct {
        const char* file;
        const char* code;
        unsigned long line, column, character;
    } cases[] = {
        {"data_a\n_cell_formula_units_Z  four\n", "not-a-number", 2, 24, 24},
        {"data_a\n_publ_section_title 'M\xC3\xBCnster  ~2'\n", "blanks-doubled", 2, 30, 29},
        {"data_a\n_publ_section_title\n;Two\n  lines~2\n;\n", "lone-mark", 4, 8, 8},
        {"data_a\r\n_publ_section_title\r\n;\\\r\nfol\\\r\nded~2\r\n;\r\n", "lone-mark", 5, 4, 4},
        {"data_a\nloop_\n_cell_length_a\n_cell_length_b\n1 2\n3\n", "loop-not-full", 2, 1, 1},
        {"data_a\n_x ? _publ_section_title 'A title\n_y 1\n", "not-terminated", 2, 26, 26},
        {"#\\#CIF_2.0\ndata_a\n_x 'b' _y \"\"\"A\n title\n", "not-terminated", 3, 11, 11},
        {"data_a\n_x 'b'\n_y\n;A\n title\n", "not-terminated", 4, 1, 1},
        {"#\\#CIF_2.0\ndata_a\n_x 'b' _y [1\n2", "not-terminated", 3, 11, 11},
        {"#\x01\ndata_a\n_cell_length_a 1\n", "control-character", 1, 2, 2},
        {"data_\n", "block-empty", 1, 6, 6},
        {"data_\n_x 1\ndata_\n_x 2\n", "block-twice", 3, 6, 6},
        {"data_a\n_x 1\nglobal_\n", "block-empty", 3, 1, 1},
        {"", "not-cif", 1, 1, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        const CheckFindings findings = findings_in(c.file);
        const auto found = std::find_if(
            findings.begin(), findings.end(),
            [&](const CheckFinding& finding) { return std::string(finding.code->code) == c.code; });
        ASSERT_NE(found, findings.end());
        EXPECT_EQ(found->problem.line, c.line);
        EXPECT_EQ(found->problem.column, c.column);
        EXPECT_EQ(found->region.column, c.character);
    }
}

TEST(CheckEntries, TellsOnceWhatEntriesHaveInCommon) {
    const std::string crystal = "_cell_length_a 5\n_cell_formula_units_Z four\n";
    const std::string file =
        "data_global\n_publ_author_name 'Smith  A B'\n_journal_year 12\ndata_I\n" + crystal +
        "data_II\n" + crystal;
    const std::vector<std::string> codes = codes_of(findings_in(file));
    EXPECT_EQ(std::count(codes.begin(), codes.end(), "blanks-doubled"), 1);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), "year-invalid"), 1);
    EXPECT_EQ(std::count(codes.begin(), codes.end(), "not-a-number"), 2);
}

TEST(CheckEntries, CountsWhatIsBeyondAThousandOfACode) {
    const struct {
        const char* code;
        std::string head, unit;
        unsigned long count;  // of units
        std::string more;
    } cases[] = {
        {"item-twice", "data_a\n_a 1\n", "_a 1\n", 3000, "2,000 more of these"},
        {"block-empty", "", "data_a\n", 1000, ""},
        {"block-empty", "", "data_a\n", 1001, "1 more of these"},
        {"control-character", "data_a\n_a 1\n", "#\x01\n", 9000, "8,000 more of these"},
        {"not-ascii", "data_a\nloop_\n_a\n", "'\xC3\xA9'\n", 1500, "500 more of these"},
        {"lone-mark", "data_a\nloop_\n_chemical_name_common\n", "H~2\n", 2500,
         "1,500 more of these"},  // which reading and checking find both
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.code);
        std::string file = c.head;
        for (unsigned long i = 0; i < c.count; ++i) file += c.unit;
        CheckFindings of_code;
        for (const CheckFinding& finding : findings_in(file)) {
            if (std::string(finding.code->code) == c.code) of_code.push_back(finding);
        }
        const auto heads =
            static_cast<unsigned long>(std::count(c.head.begin(), c.head.end(), '\n'));
        ASSERT_EQ(of_code.size(), c.more.empty() ? 1000U : 1001U);
        EXPECT_EQ(of_code.back().problem.line, heads + of_code.size());
        EXPECT_EQ(of_code.back().count, c.count - of_code.size() + 1);
        EXPECT_EQ(of_code.size() > 1000 ? of_code.back().problem.what : "", c.more);
    }
}
