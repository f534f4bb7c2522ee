// What set changes in files, and what it leaves as it is.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "cli/EditedFile.h"
#include "cli/InputFile.h"
#include "tests/cli/Program.h"

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

const std::string
    one = "data_I\r\n# red\r\n_exptl_crystal_colour red\r\n_x 1",
    two =
        "data_I\n_exptl_crystal_colour 'red' # red\n"
        "data_II\n_exptl_crystal_colour \"\\a-dark red\"\n_exptl_crystal_description block\n";

class Set : public Program {
protected:
    Set() {
        file("one.cif", one);
        file("two.cif", two);
    }

    std::string read(const std::string& name) const { return contents(folder_ / name); }
    void expect_untouched() const {
        EXPECT_EQ(read("one.cif"), one);
        EXPECT_EQ(read("two.cif"), two);
    }
};

}  // namespace

TEST_F(Set, ChangesTheValueAlone) {
    const struct {
        const char* arguments;
        const char* file;
        int status;
        std::string value;  // of the last colour
    } cases[] = {
        {"--value 'α-H₂O' one.cif", "one.cif", 0, "\\a-H~2~O\r\n"},
        {"--value red one.cif", "one.cif", 1, "red\r\n"},
        {"--value=-1 one.cif", "one.cif", 0, "-1\r\n"},
        {"--unset one.cif ./one.cif", "one.cif", 0, "?\r\n"},
        {"--value= one.cif", "one.cif", 0, "?\r\n"},
        {"--from cif-text --value '\\b' --entry data_ii two.cif", "two.cif", 0, "\"\\b\"\n"},
        {"--replace red --value green one.cif two.cif", "two.cif", 0, "\"\\a-dark green\"\n"},
        {"--replace 'α-' --value 'β-' two.cif one.cif", "two.cif", 0, "\"\\b-dark red\"\n"},
        {"--replace '\\a-' --value '\\b-' two.cif", "two.cif", 0, "\"\\b-dark red\"\n"},
        {"--replace a --value o two.cif", "two.cif", 0, "\"\\a-dork red\"\n"},
        {"--replace blue --value green .", "two.cif", 1, "\"\\a-dark red\"\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments);
        file("one.cif", one);
        file("two.cif", two);
        struct stat before {
        }, after{};
        const std::string path = (folder_ / c.file).string();
        ASSERT_EQ(stat(path.c_str(), &before), 0);
        const std::string diff = run("set --dry-run --field color " + std::string(c.arguments)).out;
        expect_untouched();
        const Result done = run("set --field color " + std::string(c.arguments));
        EXPECT_EQ(done.err, "");
        EXPECT_EQ(done.status, c.status);
        const std::string now = read(c.file);
        EXPECT_THAT(now, HasSubstr("_exptl_crystal_colour " + c.value));
        EXPECT_THAT(now, StartsWith("data_I"));
        ASSERT_EQ(stat(path.c_str(), &after), 0);
        EXPECT_EQ(before.st_ino == after.st_ino, c.status == 1);
        const std::string changed_one = read("one.cif"), changed_two = read("two.cif");
        file("one.cif", one);
        file("two.cif", two);
        file("diff", diff);
        EXPECT_EQ(run_in_shell("patch --binary -sp1 <diff").out, "");
        EXPECT_EQ(read("one.cif"), changed_one);
        EXPECT_EQ(read("two.cif"), changed_two);
    }
}

TEST_F(Set, TellsWhatEntriesShare) {
    const std::string both =
        "data_global\n_publ_author_name 'Adams, B.'\ndata_I\n_atom_site_label C1\n"
        "data_II\n_atom_site_label C2\n";
    file("both.cif", both);
    const std::string note =
        "lmrtext: both.cif: note: data_I: Author(s): stands in data_global, and so changes for II, "
        "too\n";
    EXPECT_EQ(run("set both.cif --field 'author(s)' --value C.Dean --entry I --dry-run").err, note);
    EXPECT_EQ(run("set both.cif --field 'author(s)' --replace Adams --value Evans --dry-run").err,
              "");
    EXPECT_THAT(
        run("set both.cif --field 'author(s)' --value C.Dean --entry global").err,
        HasSubstr(
            "'global' is no entry: it holds what entries have in common; choose one of I, II\n"));
    const std::string show =
        "show --to json --view internal both.cif >edits.json; sed -i '0,/B.Adams/s//C.Dean/' "
        "edits.json; ";
    EXPECT_EQ(run(show + "'" PROGRAM "' set --edits edits.json").err,
              "lmrtext: both.cif: data_II: Author(s): the edits contradict each other; entries "
              "share what stands in data_global\n");
    EXPECT_EQ(read("both.cif"), both);
}

TEST_F(Set, ReplacesPartsOfFieldsInAFormOfTheirOwn) {
    const std::string parts =
        "data_a\n_cell_length_a 5.1\n_cell_length_b 6\n_cell_length_c 7\n"
        "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 90\n"
        "_journal_name_full 'Acta Crystallographica'\n_journal_volume 66\n_journal_year 2010\n"
        "_journal_page_first m1\n";
    const struct {
        const char *arguments, *line;
    } cases[] = {
        {"'Cell Lengths' --replace 5.1 --value 5.2", "_cell_length_a 5.2\n"},
        {"'Literature Reference' --replace Crystallographica --value Cryst.",
         "_journal_name_full 'Acta Cryst.'\n"},
        {"'Author(s)' --from cif-text --value 'A.M\\\"uller'",
         "_publ_author_name 'M\\\"uller, A.'\n"},
    };
    for (const auto& c : cases) {
        file("parts.cif", parts);
        EXPECT_EQ(run("set parts.cif --field " + std::string(c.arguments)).err, "");
        EXPECT_THAT(read("parts.cif"), HasSubstr(c.line));
    }
}

TEST_F(Set, TellsADiffInColoursOnATerminal) {
    const std::string change = "set --dry-run --field color --value blue one.cif";
    EXPECT_EQ(run(change).out,
              "--- a/one.cif\n+++ b/one.cif\n@@ -1,4 +1,4 @@\n data_I\r\n # red\r\n"
              "-_exptl_crystal_colour red\r\n+_exptl_crystal_colour blue\r\n _x 1\n"
              "\\ No newline at end of file\n");
    const std::string shown = run_in_shell("env TERM=xterm NO_COLOR= script -qec \"'" PROGRAM "' " +
                                           change + "\" /dev/null")
                                  .out;
    EXPECT_THAT(shown, HasSubstr("\x1b[31m-_exptl_crystal_colour red\x1b[0m\r\n"));
    EXPECT_THAT(shown, HasSubstr("\x1b[32m+_exptl_crystal_colour blue\x1b[0m\r\n"));
}

TEST_F(Set, TakesBackWhatShowTells) {
    const std::string show = "show --to json --view internal one.cif two.cif >edits.json; ";
    const std::string set = "'" PROGRAM "' set --edits edits.json";
    EXPECT_EQ(run(show + set).status, 1);
    expect_untouched();
    const Result done =
        run(show + "sed -i 's/dark red/dark blue/; s/\"block\"$/null/' edits.json; " + set);
    EXPECT_EQ(done.err, "");
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(read("one.cif"), one);
    EXPECT_THAT(read("two.cif"), EndsWith("\"\\a-dark blue\"\n_exptl_crystal_description block\n"));
    EXPECT_THAT(read("two.cif"), StartsWith("data_I\n_exptl_crystal_colour 'red' # red\n"));
}

TEST_F(Set, WhatIsWrongIsOneLineAndChangesNothing) {
    const auto json = [&](const std::string& name, const std::string& fields) {
        file(name, R"([{"file": "one.cif", "block": "I", "fields": [{)" + fields);
    };
    json("cut.json", R"("label": "Color", "te)");
    json("label.json", R"("label": "Colr", "text": "x"}]}])");
    json("text.json", R"("label": "Color", "text": 5}]}])");
    json("twice.json", R"("label": "Color", "text": "x"}, {"label": "Color", "text": "y"}]}])");
    json("comma.json", R"("label": "Color" "text": "x"}]}])");
    file("block.json", R"([{"file": "one.cif", "block": "III", "fields": []}])");
    file("none.json", "{}");
    file("no.cif", "hello\n");
    const std::string color = "--field color --value x ";
    const std::pair<std::string, const char*> cases[] = {
        {color, "set needs a FILE, "},
        {"--field color one.cif", "set needs --field, and --value or --unset "},
        {"--field color --value x --unset one.cif", "--value excludes --unset"},
        {"--field color --replace '' --value x one.cif", "--replace: expected a text"},
        {"--field Colour --value x one.cif", "no such field: 'Colour'; did you mean 'Color'?"},
        {color + "two.cif", "two.cif: has several entries; --entry chooses one of I, II"},
        {color + "--entry III two.cif", "two.cif: no such block: 'III'; did you mean "},
        {color + "-", "-: standard input cannot be edited"},
        {color + "no.cif", "no.cif:1: not a CIF file: "},
        {color + "none.cif", "none.cif: No such file or directory"},
        {color + "/dev/null", "/dev/null: is no regular file"},
        {color + "packed.cif.gz", "packed.cif.gz: is a gzip file"},
        {"--field color --value \"$(printf '\\001')\" one.cif", "one.cif: data_I: Color: "},
        {"--field color --value \"$(printf 'a\\377b')\" one.cif",
         "one.cif: data_I: Color: not UTF-8, which no CIF file holds"},
        {"--field color --replace dark --value=- two.cif",
         "two.cif: data_II: Color: replacing 'dark' would change more of the text than that"},
        {"--field 'cell lengths' --from cell-lengths --value 5 one.cif",
         "one.cif: data_I: Cell Lengths: expected cell lengths behind labels: a 5.1 b 7.25(1) c 9"},
        {"--field 'r-factor (%)' --value red one.cif",
         "one.cif: data_I: R-Factor (%): expected a number"},
        {"--field 'reduced cell volume' --value 5 one.cif",
         "one.cif: data_I: Reduced Cell Volume: "},
        {"--edits none.cif", "none.cif: No such file or directory"},
        {"--edits cut.json", "cut.json: JSON is cut short"},
        {"--edits label.json", "label.json: no such field: 'Colr'; did you mean 'Color'?"},
        {"--edits text.json", "text.json: expected a text for \"text\" in entry 1"},
        {"--edits twice.json", "one.cif: data_I: Color: the edits contradict each other"},
        {"--edits comma.json", "comma.json: not JSON: line 1, column "},
        {"--edits block.json", "one.cif: no such block: 'III'"},
        {"--edits none.json", "none.json: expected an array of entries"},
        {"--edits none.json one.cif", "set --edits takes no FILE"},
    };
    run_in_shell("gzip <one.cif >packed.cif.gz");
    for (const auto& [arguments, message] : cases) {
        SCOPED_TRACE(arguments);
        const Result done = run("set " + arguments);
        EXPECT_EQ(done.status, 2);
        EXPECT_THAT(done.err, StartsWith(std::string("lmrtext: ") + message));
        EXPECT_THAT(done.err, MatchesRegex("[^\n]+\n"));
        expect_untouched();
    }
}

TEST_F(Set, OneBadFileHoldsBackNoOther) {
    file("no.cif", "hello\n");
    const Result done =
        run("set -j 2 --backup --field color --value x no.cif none.cif one.cif two.cif");
    EXPECT_EQ(done.status, 2);
    EXPECT_THAT(read("one.cif"), HasSubstr("_exptl_crystal_colour x\r\n"));
    EXPECT_EQ(read("one.cif~"), one);
    EXPECT_EQ(read("two.cif"), two);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "two.cif~"));
}

TEST_F(Set, KeepsLinksAndRightsAndLeavesNothingBehind) {
    std::filesystem::create_directory(folder_ / "store");
    std::filesystem::rename(folder_ / "one.cif", folder_ / "store/x.cif");
    std::filesystem::create_symlink("store/x.cif", folder_ / "link.cif");
    chmod((folder_ / "store/x.cif").c_str(), 0640);
    const std::string set = "'" PROGRAM "' set --field color --value blue ";
    EXPECT_EQ(run_in_shell(set + "link.cif").err, "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "link.cif"));
    struct stat found {};
    ASSERT_EQ(stat((folder_ / "link.cif").c_str(), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0640U);
    const auto refused = [&](const std::string& before, const std::string& message) {
        file("store/x.cif", one);
        EXPECT_EQ(run_in_shell(before + set + "store/x.cif").err,
                  "lmrtext: store/x.cif: " + message);
        EXPECT_EQ(read("store/x.cif"), one);
        EXPECT_EQ(run_in_shell("ls -A store").out, "x.cif\n");
    };
    file("store/x.cif", one + std::string(4096, '\n'));  // more than the limit below
    EXPECT_EQ(run_in_shell("ulimit -f 1; " + set + "store/x.cif").err,
              "lmrtext: store/x.cif: File too large\n");
    refused("exec 5<store/x.cif; flock 5; ", "another process is editing it\n");
    const std::string other = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    if (run_in_shell(other + "'" PROGRAM "' --version").status != 0) GTEST_SKIP();
    chmod(folder_.c_str(), 0755);
    refused("chmod 644 store/x.cif; " + other, "Permission denied\n");
    refused("chmod 666 store/x.cif; " + other, "its folder: Permission denied\n");
    refused("chmod 777 store; " + other,
            "owner and group cannot be kept: Operation not permitted\n");
}

TEST_F(Set, AFileThatHasChangedMeanwhileIsRefused) {
    const std::string path = file("a.cif", "data_a\n_x 1\n_y 2\n");
    const std::pair<std::string, const char*> cases[] = {
        {"echo '_z 3' >>a.cif", "line 4 was '' and is '_z 3'"},
        {"sed -i s/_x/_w/ a.cif", "line 2 was '_x 1' and is '_w 1'"},
    };
    for (const auto& [change, message] : cases) {
        file("a.cif", "data_a\n_x 1\n_y 2\n");
        const EditedFile edited(path);
        run_in_shell(change);
        const std::string changed = read("a.cif");
        EXPECT_THAT(
            [&] { edited.replace("data_b\n", false); },
            testing::ThrowsMessage<InputError>(path + ": changed since it was read: " + message));
        EXPECT_EQ(read("a.cif"), changed);
    }
}

TEST_F(Set, OfTwoProcessesNoneLosesWhatTheOtherDid) {
    const Result done = run_in_shell(
        "change() { '" PROGRAM
        "' set --field $1 --value $2 one.cif; echo $? >$1; }\n"
        "check() {\n"
        "    grep -qw $2 one.cif; is_lost=$?\n"
        "    [ $(cat $1) -eq $((is_lost * 2)) ] || echo \"$2: $is_lost, but $(cat $1)\"\n"
        "}\n"
        "for i in $(seq 60); do\n"
        "    change Color c$i & change Habit h$i & wait\n"
        "    check Color c$i; check Habit h$i; grep -q 0 Color Habit || echo both refused\n"
        "done; echo done");
    EXPECT_EQ(done.out, "done\n");
    std::istringstream lines(done.err);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_THAT(
            line,
            MatchesRegex(
                "lmrtext: one.cif: (changed since it was read: .*|another process is editing it)"));
    }
}
