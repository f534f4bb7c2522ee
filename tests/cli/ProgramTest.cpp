#include "tests/cli/Program.h"

#include <csignal>

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

const std::string data = "'" DATA_FOLDER "'";  // for the shell

}  // namespace

TEST_F(Program, ShowsAndComparesFiles) {
    const Result done = run("show --to html5 " + data + "/2204347.cif " + data + "/1008935.cif");
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(done.out,
                HasSubstr("data_2204347\n    Identifier: 2204347\n    Author(s): W.Liao, "
                          "R.Dronskowski\n    Literature Reference: <i>Acta Crystallographica "
                          "Section E</i> (<b>60</b>, 2004), i124-i126\n"));
    EXPECT_THAT(done.out, HasSubstr("data_1008935\n    Identifier: 1008935\n"));
    const std::string some = " --fields \"z, z', author(s)\" " + data + "/2204347.cif";
    EXPECT_THAT(run("show --find Liao --to qt" + some).out,
                EndsWith("data_2204347\n    Z, Z': <b>Z</b>: 3 <b>Z'</b>: 0.0833333\n"
                         "    Author(s): W.<b><font color=blue>Liao</font></b>, R.Dronskowski\n"
                         "        found: 'Liao'\n"));
    EXPECT_EQ(run("show -o entry.md" + some).err, "");
    EXPECT_THAT(contents(folder_ / "entry.md"), StartsWith("## "));
    EXPECT_EQ(run("show -o entry.json" + some).status, 0);
    EXPECT_THAT(contents(folder_ / "entry.json"), StartsWith("[\n"));
    EXPECT_EQ(run("show --to csv -o entry.doc" + some).status, 0);
    EXPECT_EQ(run("show -o entry.CSV" + some).status, 0);
    EXPECT_THAT(contents(folder_ / "entry.CSV"), StartsWith("File,Block,\"Z, Z'\",Author(s)\r\n"));
    EXPECT_EQ(contents(folder_ / "entry.doc"), contents(folder_ / "entry.CSV"));
    EXPECT_THAT(run("fields --view default").out,
                StartsWith("Identifier\tPublication\nAuthor(s)\tPublication\n"));
}

TEST_F(Program, ComparesWhatIsNamedAndPairsTheRest) {
    const std::string entry = "_exptl_crystal_colour red\n_chemical_name_common ",
                      page = "page.html";
    file("a.cif", "data_I\n" + entry + "urea\ndata_II\n" + entry + "thiourea\n");
    file("b.cif", "data_II\n" + entry + "Thiourea\ndata_III\n" + entry + "urea\n");
    file("a.cif:odd", "data_I\n" + entry + "urea\n");
    const struct {
        const char* arguments;
        int status;
        std::string out;
    } cases[] = {
        {"a.cif a.cif", 0, ""},
        {"a.cif:I a.cif:odd", 0, ""},
        {"a.cif:II b.cif:ii", 0, ""},
        {"--ignore insertion a.cif:I a.cif:II", 0, ""},
        {"--exact a.cif:II b.cif:data_II", 1,
         "a.cif data_II and b.cif data_II (as named)\n< Synonym: [-t-]hiourea\n"
         "> Synonym: {+T+}hiourea\n  why: 't' against 'T' in case\n"},
        {"a.cif b.cif", 1, "a.cif data_I: only left\nb.cif data_III: only right\n"},
        {"--all --fields Color a.cif:I b.cif:III", 0,
         "a.cif data_I and b.cif data_III (as named)\n= Color: red\n"},
        {"--summary --fields Color a.cif:I b.cif:III", 0,
         "              equal  equivalent   different   only-left  only-right\n"
         "Entries           1           0           0           0           0\n"
         "Color             1           0           0           0           0\n"},
        {"a.cif none.cif", 2, ""},
        {"- -", 2, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments);
        const Result done = run(std::string("compare ") + c.arguments);
        EXPECT_EQ(done.status, c.status) << done.err;
        EXPECT_EQ(done.out, c.out);
    }
    EXPECT_EQ(run("compare a.cif:IIV b.cif").err,
              "lmrtext: a.cif: no such block: 'IIV'; did you mean 'II'?\n");
    EXPECT_EQ(run("compare -o page.html a.cif:I a.cif:II").status, 1);
    EXPECT_THAT(contents(folder_ / page), StartsWith("<!DOCTYPE html>\n"));
    EXPECT_EQ(run("compare -o page.html a.cif:I none.cif").status, 2);
    EXPECT_THAT(contents(folder_ / page), HasSubstr(">thio</span>"));
    EXPECT_THAT(run("compare --to json a.cif a.cif").out, HasSubstr("\"verdict\": \"equal\""));
    EXPECT_THAT(run("compare --ignore acent a.cif b.cif").err,
                HasSubstr("no such reason: 'acent'; did you mean 'accent'?"));
    EXPECT_THAT(run("fields --policies").out, HasSubstr("\nFormula\tformula\t"));
}

TEST_F(Program, FindsEntries) {
    const std::string all = " --no-progress " + data;
    const Result done = run("find 'LIAO' --and year:2004 --and C1" + all);
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(
        done.out,
        MatchesRegex(".*/2204347.cif: data_2204347\n"
                     "    Formula: [^\n]*\n        found: 'C1' is C\n"
                     "    Literature Reference: [^\n]*\n        found: 'year:2004' is 2004\n"
                     "    Author.s.: W.Liao, R.Dronskowski\n        found: 'LIAO' is Liao\n"
                     "    Moiety Formula: [^\n]*\n        found: 'C1' is C\n"));
    EXPECT_EQ(run("find --count liao --jobs 2" + all).out, "1\n");
    EXPECT_EQ(run("find --count liao --no-fold" + all).out, "0\n");
    EXPECT_THAT(run("find --list group:P-1 " + all).out, MatchesRegex(".*/2014129.cif\n"));
    EXPECT_THAT(run("find --to json --units utf16 liao" + all).out,
                HasSubstr("{\n     \"term\": \"liao\",\n     \"from\": 2,\n     \"to\": 6,\n"
                          "     \"reason\": \"'liao' is Liao\"\n    }"));
    EXPECT_EQ(run("find nowhere" + all).status, 1);
    EXPECT_EQ(run("find liao none.cif" + all).status, 2);
    EXPECT_EQ(run("find liao").status, 2);
    EXPECT_EQ(run("find year:now" + all).err,
              "lmrtext: 'year:now' is no term; expected year:YEAR or FROM-TO\n");
    EXPECT_EQ(run("find yaer:2004" + all).err,
              "lmrtext: note: 'yaer:2004' is looked for as it is; did you mean 'year:'?\n");
}

TEST_F(Program, SaysInSentencesWhatIsWrong) {
    file("odd.cif",
         "data_x\n_cell_length_a 5\n_cell_length_c 6\n"
         "_symmetry_space_group_name_H-M 5\n_refine_ls_R_factor_gt 1e308\n_CELL_length_a 6\n");
    const Result done = run("show --fields 'Space Group,R-Factor (%)' odd.cif");
    EXPECT_EQ(done.err,
              "odd.cif:2: data_x: the cell has no _cell_length_b\n"
              "odd.cif:4: data_x: _symmetry_space_group_name_h-m: unknown space group '5'\n"
              "odd.cif:5: data_x: _refine_ls_r_factor_gt: expected a number, not '1e308'\n"
              "odd.cif:6: data_x: _cell_length_a: given again; the first value counts\n");
    EXPECT_THAT(done.out, EndsWith("Space Group: 5\n"));
    EXPECT_EQ(done.status, 1);
}

TEST_F(Program, ThePageOfCommandsIsTheManual) {
    EXPECT_EQ(contents(COMMANDS), run("manual --markdown").out);
    std::istringstream rows(run("targets").out);
    int targets = 0;
    for (std::string name, rest; std::getline(std::getline(rows, name, '\t'), rest); ++targets) {
        EXPECT_EQ(run("convert --from plain --to " + name, "a").status, 0);
    }
    EXPECT_EQ(targets, 10);
}

TEST_F(Program, TellsShellsAndReadersOfItsCommands) {
    const std::string manual = run("manual").out;
    EXPECT_THAT(manual, StartsWith(".TH LMRTEXT 1 "));
    EXPECT_THAT(manual, HasSubstr(".SS convert\n"));
    EXPECT_THAT(manual, HasSubstr("\\fB\\-\\-term"));
    EXPECT_THAT(manual, HasSubstr(".SH EXIT STATUS\n.TP\n\\fB0\\fR\nall went well"));
    EXPECT_THAT(manual,
                HasSubstr("\n.nf\nlmrtext compare \\-\\-tolerance 0.01 before/ after/\n.fi\n"));
    EXPECT_THAT(manual, EndsWith(".SH SEE ALSO\nfind(1),\ngzip(1),\nparallel(1)\n"));
    EXPECT_THAT(manual, HasSubstr("printf \\(aq%s\\en\\(aq "));
    EXPECT_THAT(manual, HasSubstr("\\fBslices\\fR\ntrue or false, a tab"));
    const auto completed = [&](const std::string& words, int last) {
        file("complete", run("completion bash").out + "COMP_WORDS=(lmrtext " + words +
                             ") COMP_CWORD=" + std::to_string(last) +
                             "\n_lmrtext\necho \"${COMPREPLY[@]}\"\n");
        return run("--version >/dev/null; bash complete").out;
    };
    EXPECT_EQ(completed("com", 1), "compare completion\n");
    EXPECT_EQ(completed("convert --to html", 3), "html html5\n");
    EXPECT_EQ(completed("search --ma", 2), "--matching\n");
    EXPECT_EQ(completed("completion ''", 2), "bash zsh fish\n");
    EXPECT_THAT(run("completion fish").out, HasSubstr("-l how -x -a 'exact lines numeric"));
    EXPECT_THAT(run("completion zsh").out, HasSubstr("'*--view[Which fields]:value:(default "));
}

TEST_F(Program, WritesForTheTerminalThatItHas) {
    const auto shown = [&](const std::string& variables, const std::string& arguments) {
        const std::string command = "env TERM=xterm NO_COLOR= " + variables + " script -qec \"'" +
                                    PROGRAM + "' " + arguments + " '" + file("text", "a&b\n") +
                                    "'\" /dev/null";
        return run("--version >/dev/null; " + command).out;
    };
    const std::string search = "search --how exact --term 'a&b'";
    EXPECT_EQ(shown("", search), "\x1b[1m\x1b[32ma&b\x1b[0m\r\n");
    EXPECT_EQ(shown("NO_COLOR=1", search), "a&b\r\n");
    EXPECT_EQ(shown("TERM=dumb", "convert --from plain"), "a&b\r\n");
    EXPECT_EQ(shown("", "convert --from plain --to html5"), "a&amp;b\r\n");
}

TEST_F(Program, ClosedStreamsAndFullDevicesAreNoOthersFiles) {
    file("bad.cif", "data_x\n_cell_length_a 'q\n");
    run("show -o page.html " + data + "/1008935.cif bad.cif 2>&-");
    EXPECT_THAT(contents(folder_ / "page.html"), StartsWith("<!DOCTYPE html>\n"));
    const Result closed = run("convert --from plain --to tevo bad.cif - <&-");
    EXPECT_EQ(closed.err, "lmrtext: <stdin>: Bad file descriptor\n");
    for (const char* arguments : {"--help >/dev/full", "convert --help >/dev/full"}) {
        EXPECT_EQ(run(arguments).err, "lmrtext: standard output: No space left on device\n");
    }
}

TEST_F(Program, WrongUsageIsOneLineAndStatusTwo) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"nonsense --term x", "no such command: 'nonsense'"},
        {"convert", ""},
        {"convert --from plain", "convert needs --to"},
        {"convert --from x --to html", "no such kind: 'x'; expected one of tevo-name cif-"},
        {"convert --from plain --to qt --line-length -1", "--line-length: "},
        {"convert --from plain --to qt --line-length 4294967295", "--line-length: "},
        {"convert --from plain --to qt -j 0", "--jobs: "},
        {"show", ""},
        {"shwo x.cif", "no such command: 'shwo'; did you mean 'show'?"},
        {"convert --from plain --to htlm5", "no such kind: 'htlm5'; did you mean 'html5'?"},
        {"show --fields Nope x", "no such field: 'Nope'; lmrtext fields --view internal lists"},
        {"show --fields 'Color,Autor(s),Habit' x", "no such field: 'Autor(s)'; did you mean 'Aut"},
        {"show --fields 'Cell Lenghts' x", "no such field: 'Cell Lenghts'; did you mean 'Cell L"},
        {"show --fields \"z,z',Color,Hbait\" x", "no such field: 'z,z''; did you mean 'Z, Z''?"},
        {"search --field authors --term x", "no such field: 'authors'; did you mean 'Author(s)'?"},
        {"show -o x.doc x.cif", "x.doc: no target writes .doc files; name one with --to"},
        {"show -o '' x.cif", "--output: expected the name of a file"},
        {"compare a.cif", ""},
        {"fields --view all", "no such kind: 'all'; expected one of default"},
        {"search --how exact", ""},
        {"search --how x --term a", "no such kind: 'x'; expected one of exact"},
        {"search --how publication --term gluco",
         "'gluco' is not a term for the search publication"},
        {"search --how numeric --term gluco", "'gluco' is not a term for the search numeric"},
        {"search --how numeric --term 1 --tolerance x", "--tolerance: 'x' is not a tolerance"},
        {"search --how numeric --term 1 --tolerance -1", "--tolerance: "},
        {"search --how numeric --term 1 --tolerance 1e999", "--tolerance: "},
        {"search --how substring --term x --min-length 0", "--min-length: "},
    };
    for (const auto& [arguments, message] : cases) {
        const Result done = run(arguments, "a\n");
        EXPECT_EQ(done.status, 2) << arguments;
        EXPECT_THAT(done.err, StartsWith(std::string("lmrtext: ") + message)) << arguments;
        EXPECT_THAT(done.err, MatchesRegex("lmrtext: [^\n]+\n")) << arguments;
        EXPECT_EQ(done.out, "");
    }
}

TEST_F(Program, WhatIsReadIsNotOverwritten) {
    file("same", "a\n");
    file("other", "b\n");
    const Result batch = run("convert --from plain --to tevo same other >>same; echo $? >status");
    EXPECT_EQ(batch.err, "lmrtext: same: input file is output file\n");
    EXPECT_EQ(contents(folder_ / "same"), "a\nb\n");
    EXPECT_EQ(contents(folder_ / "status"), "1\n");
    for (const char* arguments : {"show -o same other ./same", "show -o same - <same"}) {
        const Result shown = run(arguments);
        EXPECT_THAT(shown.err, MatchesRegex("lmrtext: (\\./same|-): input file is output file\n"));
        EXPECT_EQ(shown.status, 1);
        EXPECT_EQ(contents(folder_ / "same"), "a\nb\n");
    }
}

TEST_F(Program, OutputThatCannotBeWrittenIsReported) {
    const Result full = run("convert --from plain --to tevo >/dev/full; echo $? >status", "a\n");
    EXPECT_EQ(full.err, "lmrtext: standard output: No space left on device\n");
    EXPECT_EQ(contents(folder_ / "status"), "1\n");
    const Result page = run("show -o nowhere/page.html " + data + "/1008935.cif");
    EXPECT_EQ(page.err, "lmrtext: nowhere/page.html: No such file or directory\n");
    EXPECT_EQ(page.status, 1);
    // A reader that has seen enough is not a failure.
    const std::string many(1000000, '\n');
    EXPECT_EQ(run("convert --from plain --to tevo | head -1; true", many).err, "");
    std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(run("convert --from plain --to tevo | head -1; true", many).err, "");
    std::signal(SIGPIPE, SIG_DFL);
}

TEST_F(Program, AFileAppearsWholeOrNotAtAll) {
    const auto files = [&] {
        std::vector<std::string> names;
        for (const auto& file : std::filesystem::directory_iterator(folder_)) {
            names.push_back(file.path().filename());
        }
        return names;
    };
    file("page.html", "before");
    std::filesystem::create_symlink("page.html", folder_ / "link.html");
    const std::string program = "'" PROGRAM "' show -o page.html ";
    const Result ended = run("--version >/dev/null; mkfifo fifo; exec 3<>fifo; " + program +
                             "- <fifo & while ! ls .lmrtext-*; do sleep 0.01; done >ls 2>&1; "
                             "kill $!; wait $!; echo $? >&2; rm fifo ls");
    EXPECT_THAT(ended.err, EndsWith("143\n"));            // by SIGTERM
    run("show -o page.html none none none 2>&1 | true");  // SIGPIPE, unless it was faster
    const Result full =
        run("--version >/dev/null; ulimit -f 1; " + program + data + "/1008935.cif");
    EXPECT_EQ(full.err, "lmrtext: page.html: File too large\n");
    EXPECT_EQ(full.status, 1);
    EXPECT_EQ(contents(folder_ / "page.html"), "before");
    EXPECT_EQ(run("show -o link.html " + data + "/1008935.cif").status, 0);
    EXPECT_THAT(contents(folder_ / "page.html"), EndsWith("</html>\n"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "link.html"));
    EXPECT_THAT(files(),
                testing::UnorderedElementsAre("in", "out", "err", "page.html", "link.html"));
}

TEST_F(Program, ShowReportsWhatIsNoCifAndShowsTheOthers) {
    file("unclosed.cif", "data_x\n_chemical_name_common 'unclosed\n_cell_length_a 1\n");
    file("binary.cif", std::string("\0\x01\x1B[31m\xFF", 8));
    file("empty.cif", "");
    std::filesystem::create_directory(folder_ / "none");
    file("odd.cif", "data_x\n_cell_formula_units_Z '~a^b~c^'\n_chemical_name_systematic x\\d-ok\n");
    const Result done =
        run("show -o page.html miss\xC2\x9Bing\u202E.cif none unclosed.cif binary.cif empty.cif "
            "odd.cif " +
            data + "/1008935.cif");
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(done.out, "");
    EXPECT_THAT(done.err, StartsWith("lmrtext: miss?ing<U+202E>.cif: No such file or directory\n"
                                     "lmrtext: no CIF files in none\n"
                                     "lmrtext: unclosed.cif:2: not a CIF file: "));
    EXPECT_THAT(done.err, HasSubstr("lmrtext: binary.cif:1: not a CIF file: "));
    EXPECT_THAT(
        done.err,
        EndsWith("lmrtext: empty.cif:1: not a CIF file: expected a data block\n"
                 "odd.cif:2: data_x: _cell_formula_units_z: expected a number, not '~a^b~c^'\n"));
    const std::string page = contents(folder_ / "page.html");
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n"));
    EXPECT_THAT(page, HasSubstr(">xδ-ok</h2>"));
    EXPECT_THAT(page, HasSubstr(">Platinum(IV) oxide - β</h2>"));
    EXPECT_THAT(page, EndsWith("</html>\n"));
    EXPECT_EQ(run("show -o page.html missing.cif empty.cif").status, 1);
    EXPECT_EQ(contents(folder_ / "page.html"), page);
}
