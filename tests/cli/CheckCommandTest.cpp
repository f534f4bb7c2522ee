#include <cstring>
#include <string>

#include "tests/cli/Program.h"

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr char misspelt[] = "data_a\r\n_cell_lenght_a 5 # one\r\n_journal_name_full 'Acta  X'\r\n";

}  // namespace

TEST_F(Program, ChecksFiles) {
    file("a.cif", misspelt);
    file("good.cif", "data_a\n_journal_volume 5\n");
    file("bad.cif", "data_a\n_journal_volume 'x\n");
    file("full.cif", "data_a\nloop_\n_X\n_y\n1 2 3\n");
    file("twice.cif", "data_a\n_X 1\n_x 2\n");
    file("tag.cif", "data_a\n_z");
    const std::string slip =
        "a.cif:2:1: warning: tag-misspelt: data_a: a known tag is written like this one: "
        "'_cell_lenght_a'; expected _cell_length_a [repair: _cell_lenght_a -> _cell_length_a]\n";
    const std::string blanks =
        "a.cif:3:25: note: blanks-doubled: data_a: _journal_name_full: more than one blank: '  ' "
        "[repair: '  ' -> ' ']\n";
    const struct {
        const char* arguments;
        int status;
        std::string out;
    } cases[] = {
        {"good.cif", 0, ""},
        {"a.cif good.cif", 1, slip},
        {"--level note --jobs 2 good.cif a.cif", 1, slip + blanks},
        {"--level error a.cif", 0, ""},
        {"--only blanks-doubled,item-twice a.cif", 1, blanks},
        {"--only blanks-doubled --level warning a.cif", 0, ""},
        {"--ignore blanks-doubled --level note a.cif", 1, slip},
        {"bad.cif a.cif", 2,
         "bad.cif:2:17: error: not-terminated: data_a: a quotation or text field does not end: "
         "''x'\n" +
             slip},
        {"full.cif", 2,
         "full.cif:2:1: error: loop-not-full: data_a: _x: the last row of the loop is not full: "
         "'3 values'; expected rows of 2\n"},
        {"twice.cif", 1,
         "twice.cif:3:1: error: item-twice: data_a: _x: the item is given again: '2'; expected "
         "only the one in line 2\n"},
        {"tag.cif", 2, "tag.cif:2:3: error: not-cif: data_a: expected a value behind the tag\n"},
        {"none.cif", 2, ""},
        {"--only tag-mispelt a.cif", 2, ""},
        {"--summary a.cif good.cif", 1,
         "code             level  findings   repairs     files\n"
         "tag-misspelt   warning         1         1         1\n"
         "all                            1         1         2\n"},
        {"--to json --only tag-misspelt good.cif", 0, "[\n]\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments);
        const Result done = run(std::string("check ") + c.arguments);
        EXPECT_EQ(done.status, c.status) << done.err;
        EXPECT_EQ(done.out, c.out);
    }
    EXPECT_THAT(run("check --to json a.cif").out,
                AllOf(HasSubstr("\"column\": 1"), HasSubstr("\"offset\": 8"), EndsWith("}\n]\n")));
    std::string version = run("--version").out.substr(std::strlen("lmrtext "));
    version.pop_back();
    EXPECT_THAT(run("check --to sarif a.cif").out,
                AllOf(HasSubstr("\"version\": \"2.1.0\""), HasSubstr("\"uri\": \"a.cif\""),
                      HasSubstr("\"endColumn\": 15"), HasSubstr("\"version\": \"" + version + "\""),
                      EndsWith("]}]}\n")));
    EXPECT_EQ(contents(CHECKS), run("manual --checks").out);
    EXPECT_THAT(run("check --codes").out, StartsWith("not-cif\terror\t"));
}

TEST_F(Program, RepairsFilesInPlace) {
    file("a.cif", misspelt);
    const Result done =
        run("check --fix --level note --only tag-misspelt,blanks-doubled --backup a.cif");
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.out, "");
    EXPECT_EQ(done.err, "lmrtext: a.cif: 2 repairs\n");
    EXPECT_EQ(contents(folder_ / "a.cif"),
              "data_a\r\n_cell_length_a 5 # one\r\n_journal_name_full 'Acta X'\r\n");
    EXPECT_EQ(contents(folder_ / "a.cif~"), misspelt);
    EXPECT_EQ(run("check --fix --only tag-misspelt -", misspelt).status, 2);
    file("alike.cif", "data_a\n_cell_lengh_a 5\n_cell.lenth_a 6\n");
    EXPECT_EQ(run("check --fix alike.cif").status, 1);
    EXPECT_EQ(contents(folder_ / "alike.cif"), "data_a\n_cell_length_a 5\n_cell.lenth_a 6\n");
}
