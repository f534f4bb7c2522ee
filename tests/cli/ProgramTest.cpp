#include "tests/cli/Program.h"

#include <csignal>
#include <nlohmann/json.hpp>

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

const std::string data = "'" DATA_FOLDER "'";  // for the shell

}  // namespace

TEST_F(Program, ConvertsEachTextToEachTarget) {
    const std::string text = "alpha-D-gluco!2$-kappa$2!N\n";
    const struct {
        const char* target;
        std::string output;
    } cases[] = {
        {"cif", "\\a-D-gluco~2~-\\k^2^N\n"},
        {"html5", "α-D-gluco<sub>2</sub>-κ<sup>2</sup>N\n"},
        {"latex", "$\\alpha$-D-gluco\\textsubscript{2}-$\\kappa$\\textsuperscript{2}N\n"},
        {"markdown", "α-D-gluco<sub>2</sub>-κ<sup>2</sup>N\n"},
        {"unicode", "α-D-gluco₂-κ²N\n"},
    };
    for (const auto& c : cases) {
        const Result done = run(std::string("convert --from tevo-name --to ") + c.target, text);
        EXPECT_EQ(done.out, c.output) << c.target;
        EXPECT_EQ(done.status, 0) << done.err;
    }
    EXPECT_EQ(run("convert --from plain --to html5", "<alpha>").out, "&lt;alpha&gt;\n");
}

TEST_F(Program, ThePageOfCommandsIsTheManual) {
    EXPECT_EQ(contents(COMMANDS), run("manual --markdown").out);
    std::istringstream rows(run("targets").out);
    int targets = 0;
    for (std::string name, rest; std::getline(std::getline(rows, name, '\t'), rest); ++targets) {
        EXPECT_EQ(run("convert --from plain --to " + name, "a").status, 0);
    }
    EXPECT_EQ(targets, 9);
}

TEST_F(Program, TellsShellsAndReadersOfItsCommands) {
    const std::string manual = run("manual").out;
    EXPECT_THAT(manual, StartsWith(".TH LMRTEXT 1 "));
    EXPECT_THAT(manual, HasSubstr(".SS convert\n"));
    EXPECT_THAT(manual, HasSubstr("\\fB\\-\\-term"));
    EXPECT_THAT(manual, HasSubstr("printf '%s\\en' "));
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

TEST_F(Program, ShowWritesPartsOfDocuments) {
    const std::string entry = " --fields 'Space Group,R-Factor (%)' " + data + "/2204347.cif";
    EXPECT_EQ(run("show -o entry.md" + entry).err, "");
    EXPECT_THAT(contents(folder_ / "entry.md"),
                EndsWith("/2204347.cif: data\\_2204347\n\n"
                         "- Space Group: R<span style=\"text-decoration:overline\">3</span>m\n"
                         "- R-Factor (%): 1.74\n\n"));
    EXPECT_EQ(run("show -o entry.tex" + entry).status, 0);
    EXPECT_THAT(contents(folder_ / "entry.tex"),
                EndsWith("data\\_2204347}\n\\begin{description}\n"
                         "\\item[{Space Group}] R$\\overline{\\mbox{3}}$m\n"
                         "\\item[{R-Factor (\\%)}] 1.74\n\\end{description}\n"));
    const Result compared = run("compare --to markdown" + entry + " " + data + "/1008935.cif");
    EXPECT_THAT(compared.out, HasSubstr("\n- \\< R-Factor (%): 1.74\n- \\> R-Factor (%): "));
}

TEST_F(Program, RealNamesComeBackUnchanged) {
    std::istringstream rows(contents(DATA_FOLDER "/names.tsv"));
    std::string cif, source, tevo, all_cif, all_tevo;
    while (std::getline(std::getline(std::getline(rows, cif, '\t'), source, '\t'), tevo)) {
        all_cif += cif + "\n";
        all_tevo += tevo + "\n";
    }
    EXPECT_EQ(run("convert --from cif-name --to cif", all_cif).out, all_cif);
    EXPECT_EQ(run("convert --from tevo-name --to tevo", all_tevo).out, all_tevo);
}

TEST_F(Program, ATextThatFailsHoldsItsPlaceAndTheRestGoesOn) {
    file("names", "C~2~\n~a^b~c^\n\xFF\xFE~3~");
    const Result done = run("convert --from cif-name --to tevo none names .");
    EXPECT_EQ(done.out, "C!2$\n\n\xFF\xFE!3$\n");
    EXPECT_EQ(done.err,
              "lmrtext: none: No such file or directory\n"
              "names:2: creating an overlapping style error\n"
              "lmrtext: .: Is a directory\n");
    EXPECT_EQ(done.status, 1);

    const Result unknown = run("convert --from cif-name --to cif", "a\\dx\n");
    EXPECT_EQ(unknown.out, "ax\n");
    EXPECT_EQ(unknown.err, "<stdin>:1: warning: Greek code without a letter\n");
    EXPECT_EQ(unknown.status, 0);
}

TEST_F(Program, AFileThatFailsWhileItIsReadLosesNothingElse) {
    const std::string first(1 << 20, 'x');
    file("last", "a\n");
    for (const char* jobs : {"1", "2"}) {
        file("shrinks", first + std::string(1 << 22, '\n'));
        file("goes", "x\n");
        // When the first byte is out, the program waits until the pipe takes more.
        const Result done =
            run(std::string("--version >/dev/null; mkfifo pipe; '" PROGRAM "' convert --from plain "
                            "--to tevo shrinks goes . last >pipe -j ") +
                jobs +
                " & { dd bs=1 count=1 2>/dev/null; rm goes; : >shrinks; cat; } <pipe; rm pipe; "
                "wait $!");
        EXPECT_TRUE(done.out.starts_with(first + "\n"));
        EXPECT_TRUE(done.out.ends_with("\n\na\n"));
        EXPECT_EQ(done.err,
                  "lmrtext: shrinks: truncated while it was read\n"
                  "lmrtext: goes: No such file or directory\n"
                  "lmrtext: .: Is a directory\n");
        EXPECT_EQ(done.status, 1);
    }
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

TEST_F(Program, WrongUsageIsNamed) {
    const std::pair<const char*, const char*> cases[] = {
        {"serach --term x", "no such command: 'serach'"},
        {"search --how publication --term gluco",
         "'gluco' is not a term for the search publication"},
        {"search --how numeric --term gluco", "'gluco' is not a term for the search numeric"},
        {"search --how substring --term x --min-length 0", "--min-length: "},
        {"show -o '' x.cif", "--output: expected the name of a file"},
    };
    for (const auto& [arguments, message] : cases) {
        const Result done = run(arguments, "a\n");
        EXPECT_THAT(done.err, StartsWith(std::string("lmrtext: ") + message)) << arguments;
        EXPECT_EQ(done.status, 2) << arguments;
    }
}

TEST_F(Program, ShowReportsWhatNoCrystalHas) {
    file("odd.cif",
         "\xEF\xBB\xBF"
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

TEST_F(Program, SearchWritesEachTextWithItsMatches) {
    const struct {
        const char* arguments;
        const char* input;
        const char* output;
        int status;
    } cases[] = {
        {"--how substring --term 'D-gluco' --from tevo-name", "alpha-D gluco!2$\nxylose\n",
         "α-<b><span style=\"color:blue\">D gluco</span></b><sub>2</sub>\nxylose\n", 0},
        {"--how exact --term 'a&b' --matching", "a\na&b\n",
         "<b><span style=\"color:#008b00\">a&amp;b</span></b>\n", 0},
        {"--how numeric --term '1.5 2' --tolerance 1 --to slices", "2.6(2)\n2.5 +2\n",
         "false\t4-5\ntrue\t0-3\t4-6\n", 0},
        {"--how numeric --term 1.5 --tolerance 0.25 --to slices", "1.25\n1.2\n",
         "true\t0-4\nfalse\n", 0},
        {"--how surnames --term 'B.Jones, A.Smith' --to slices", "C.Smith, B.Jones\n",
         "false\t2-7\t9-16\n", 0},
        {"--how publication --term '<j>A</j>'", "<j>A</j>\n",
         "&lt;j&gt;<b><span style=\"color:#008b00\">A</span></b>&lt;/j&gt;\n", 0},
        {"--how publication --term '<j>A</j>' --to slices --matching", "none\n", "", 1},
        {"--how substring --term abcd --min-length 2 --to slices", "cdxab\n", "false\t0-2\t3-5\n",
         0},
    };
    for (const auto& c : cases) {
        const Result done = run(std::string("search ") + c.arguments, c.input);
        EXPECT_EQ(done.out, c.output) << c.arguments;
        EXPECT_EQ(done.status, c.status) << c.arguments;
        EXPECT_EQ(done.err, "");
    }
    const Result lines =
        run("search -0 --how lines --term 'b' --to slices", std::string("a\nb\0c", 5));
    EXPECT_EQ(lines.out, std::string("false\t2-3\0false\0", 16));
}

TEST_F(Program, SearchSaysTroubleAndGoesOn) {
    const Result done = run("search --how publication --term '<j>x' none -", "</j><j>\n<v>\n");
    EXPECT_EQ(done.out, "\n&lt;v&gt;\n");
    EXPECT_EQ(done.err,
              "lmrtext: none: No such file or directory\n"
              "<stdin>:1: length of StringSlice error\n");
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(run("search --how exact --term a >/dev/full", "a\n").status, 2);
}

TEST_F(Program, LongLinesPass) {
    std::string line = "tetrakis(mu!3$-hydroxo)-bis(eta$5!-cyclopentadienyl)-zirconium ";
    while (line.size() < 10000000) line += line;
    EXPECT_EQ(run("convert --from tevo-name --to tevo", line).out, line + "\n");
}

TEST_F(Program, JobsKeepTheOrderOfTextsAndReports) {
    std::string names;
    for (int i = 0; i < 400000; ++i) {
        names += "C~" + std::to_string(i) + (i % 100000 == 7 ? "^b~c^\n" : "~\n");
    }
    const Result one = run("convert --from cif-name --to html5", names);
    const Result more = run("convert --from cif-name --to html5 -j 3", names);
    EXPECT_EQ(one.status, 1);
    EXPECT_THAT(one.err, HasSubstr("<stdin>:300008: creating an overlapping style error\n"));
    EXPECT_TRUE(more.out == one.out);
    EXPECT_EQ(more.err, one.err);
    EXPECT_EQ(more.status, 1);
    EXPECT_EQ(run("search --how exact --term C~9~ --to slices --matching -j 2", names).out,
              "true\t0-4\n");
}

TEST_F(Program, WrongUsageIsOneLineAndStatusTwo) {
    for (const char* arguments :
         {"", "convert", "convert --from plain", "convert --from x --to html",
          "convert --from plain --to qt --line-length -1",
          "convert --from plain --to qt --line-length 4294967295", "show", "show --fields Nope x",
          "convert --from plain --to qt -j 0", "compare a.cif", "fields --view all", "nonsense",
          "search --how exact", "search --how x --term a",
          "search --how numeric --term 1 --tolerance x",
          "search --how numeric --term 1 --tolerance -1",
          "search --how numeric --term 1 --tolerance 1e999",
          "search --how substring --term a --min-length -1"}) {
        const Result done = run(arguments);
        EXPECT_EQ(done.status, 2) << arguments;
        EXPECT_THAT(done.err, MatchesRegex("lmrtext: [^\n]+\n")) << arguments;
        EXPECT_EQ(done.out, "");
    }
    EXPECT_THAT(run("convert --from x --to html").err, HasSubstr("tevo-name cif-name"));
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

TEST_F(Program, ShowPrintsTheFieldsOfEntries) {
    const Result done = run("show --to html5 " + data + "/2204347.cif " + data + "/1008935.cif");
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(
        done.out,
        HasSubstr(
            "data_2204347\n    Identifier: 2204347\n    Author(s): W.Liao, R.Dronskowski\n"
            "    Literature Reference: <i>Acta Crystallographica Section E</i> (<b>60</b>, "
            "2004), i124-i126\n    Formula: C N<sub>2</sub> Sr\n    Compound Name: "
            "β-Strontium cyanamide\n    Space Group: R<span style=\"text-decoration:overline\">"
            "3</span>m\n    Cell Lengths: <b>a</b> 3.9732(5) <b>b</b> 3.9732(5) <b>c</b> "
            "15.028(3)\n    Cell Angles: <b>α</b> 90.00 <b>β</b> 90.00 <b>γ</b> 120.00\n"
            "    Cell Volume: 205.453\n    Z, Z': <b>Z</b>: 3 <b>Z'</b>: 0.0833333\n"
            "    R-Factor (%): 1.74\n"));
    EXPECT_THAT(done.out, HasSubstr("data_1008935\n    Identifier: 1008935\n"));
    const Result some =
        run("show --fields \"Z, Z',Color,Author(s)\" --find Liao --to qt " + data + "/2204347.cif");
    EXPECT_THAT(
        some.out,
        EndsWith("data_2204347\n    Z, Z': <b>Z</b>: 3 <b>Z'</b>: 0.0833333\n"
                 "    Color: colourless\n    Author(s): W.<b><font color=blue>Liao</font></b>, "
                 "R.Dronskowski\n"));
    file("x.cif",
         "data_x\n_audit_creation_date 2001-02-03T10:11:12\n_audit_update_record\n;\n2002-03-04 "
         "one\n"
         " 2003-04-05 two\n;\n_database_code_depnum_a 'A 12'\n_database_code_B ?\n_database_code_C "
         "7\n"
         "_journal_coeditor_code FG1750\n");
    EXPECT_EQ(run("show --fields 'Accession Date,Modification Date,Deposition Numbers,"
                  "Cross References' x.cif")
                  .out,
              "x.cif: data_x\n    Accession Date: 2001-02-03\n    Modification Date: 2003-04-05\n"
              "    Deposition Numbers: Supplementary A 12; Journal FG1750\n"
              "    Cross References: Same structure C 7\n");
    EXPECT_THAT(run("fields --view default").out,
                StartsWith("Identifier\tPublication\nAuthor(s)\tPublication\n"));
}

TEST_F(Program, ShowWritesJsonOfRuns) {
    file("x.cif",
         "data_a\n_symmetry_space_group_name_H-M 'P -1'\n_exptl_crystal_colour \"\xE9\"\n"
         "_exptl_crystal_description '\u202E\x7F\u009B</script><!--\u2028'\n");
    const Result done = run("show --view internal --to json x.cif");
    const auto json = nlohmann::json::parse(done.out);
    const auto& fields = json.at(0).at("fields");
    EXPECT_EQ(json.at(0).at("block"), "a");
    EXPECT_EQ(fields.at(1).at("label"), "Space Group");
    EXPECT_EQ(fields.at(1).at("group"), "Cell");
    EXPECT_EQ(fields.at(1).at("text"), "P<bar>1</bar>");
    std::string shown;
    for (const auto& atom : fields.at(1).at("atoms")) {
        if (!atom.value("invisible", false)) shown += atom.at("text").get<std::string>();
    }
    EXPECT_EQ(shown, "P1");
    EXPECT_EQ(fields.at(2).at("group"), "Other");
    EXPECT_EQ(fields.at(3).at("text"), "\uFFFD");
    EXPECT_EQ(fields.at(4).at("text"), "\u202E\x7F\u009B</script><!--\u2028");
    EXPECT_THAT(done.out, HasSubstr("\"\\u202E\\u007F\\u009B<\\/script>\\u003C!--\\u2028\""));
}

TEST_F(Program, ShowReadsTextFieldsAsOneLine) {
    file("x.cif",
         "data_a\n_chemical_name_systematic\n;\n poly-\n \\m~2~-oxo\n-iron \n\n;\n"
         "_chemical_name_common ?\n_chemical_name_mineral\n;\n ? \n;\n"
         "data_b\n_chemical_name_systematic\n;\\\nalpha-\\\n\\k~2~ b\\\nc\nd\n;\n"
         "loop_\n_chemical_name_common\n'one' two .\n"
         "loop_\n_publ_author_name\n'M\\\"uller, Yi-Zhi J.'\n'Van Poucke, L. C.'\n'\xC3\x96z, "
         "\xC3\x96.'\n");
    const Result done = run("show --to tevo --fields 'Author(s),Compound Name,Synonym' x.cif");
    EXPECT_EQ(done.out,
              "x.cif: data_a\n    Compound Name: poly-mu!2$-oxo-iron\n"
              "x.cif: data_b\n    Author(s): Y.-Z.J.Muller, L.C.Van Poucke, \xC3\x96.\xC3\x96z\n"
              "    Compound Name: alpha-kappa!2$ bc d\n    Synonym: one; two\n");
}

TEST_F(Program, WhatACifLacksOrSpoilsLosesNothingElse) {
    const std::string cell =
        "_cell_length_a 10.234(5)\n_cell_length_b 1.2e1(3)\n_cell_length_c 9\n"
        "_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma ";
    const struct {
        std::string items;
        const char* shown;
        const char* reported;
    } cases[] = {
        {cell + "90\n_symmetry_space_group_name_H-M 'P 21/c'\n_cell_formula_units_Z 2\n",
         "Space Group: P2<sub>1</sub>/c\n    Cell Lengths: <b>a</b> 10.234(5) <b>b</b> 12(3) <b>c"
         "</b> 9\n    Cell Angles: <b>α</b> 90 <b>β</b> 90 <b>γ</b> 90\n    Cell Volume: 1105.27\n"
         "    Z, Z': <b>Z</b>: 2 <b>Z'</b>: 0.5",
         ""},
        {cell + "0\n",
         "Cell Lengths: <b>a</b> 10.234(5) <b>b</b> 12(3) <b>c</b> 9\n    Cell Angles: <b>α</b> 90 "
         "<b>β</b> 90 <b>γ</b> 0",
         "x.cif:2: data_x: no cell has these edges and angles\n"},
        {cell + "12(\n_cell_formula_units_Z 1e400\n_refine_ls_R_factor_gt -\n", "",
         "x.cif:7: data_x: _cell_angle_gamma: expected a number, not '12('\n"
         "x.cif:8: data_x: _cell_formula_units_z: expected a number, not '1e400'\n"
         "x.cif:9: data_x: _refine_ls_r_factor_gt: expected a number, not '-'\n"},
        {"_symmetry_space_group_name_H-M 'P x'\n_symmetry_Int_Tables_number .\n", "Space Group: Px",
         "x.cif:2: data_x: _symmetry_space_group_name_h-m: unknown space group 'P x'\n"},
        {"_symmetry_space_group_name_H-M 'P x'\n_symmetry_Int_Tables_number 19\n",
         "Space Group: P2<sub>1</sub>2<sub>1</sub>2<sub>1</sub>", ""},
        {"_cell_formula_units_Z 0e-2147483648\n_space_group_IT_number 1e300\n"
         "_space_group_name_Hall nonsense\nloop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,-z\n",
         "Space Group: P<span style=\"text-decoration:overline\">1</span>", ""},
        {"_space_group_name_Hall '-P 2ybc'\n", "Space Group: P2<sub>1</sub>/c", ""},
        {"_audit_creation_date 2001-02-30\n", "",
         "x.cif:2: data_x: _audit_creation_date: expected a date like 2004-07-09, not "
         "'2001-02-30'\n"},
    };
    for (const auto& c : cases) {
        file("x.cif", "data_x\n" + c.items);
        const Result done = run("show --to html5 x.cif");
        const std::string shown = *c.shown == '\0' ? "" : std::string("    ") + c.shown + "\n";
        EXPECT_EQ(done.out, "x.cif: data_x\n    Identifier: x\n" + shown) << c.items;
        EXPECT_EQ(done.err, c.reported) << c.items;
        EXPECT_EQ(done.status, *c.reported == '\0' ? 0 : 1);
    }
}

TEST_F(Program, CompareShowsBothSidesAndExitsAsDiff) {
    file("a.cif",
         "data_a\n_chemical_name_common acetone\n_diffrn_ambient_temperature 293(2)\n"
         "_exptl_crystal_colour red\n");
    file("b.cif",
         "data_a\n_chemical_name_common acetonitrile\n_diffrn_ambient_temperature 293.2(2)\n");
    const std::string fields = " --fields 'Synonym,Temperature (K),Color' ";
    const Result done = run("compare a.cif b.cif --tolerance 0.5 --to qt" + fields);
    EXPECT_EQ(done.out,
              "a.cif and b.cif: data_a and data_a\n"
              "< Synonym: <b><font color=blue>aceton</font></b>e\n"
              "> Synonym: <b><font color=blue>aceton</font></b>itrile\n"
              "= Temperature (K): <b><font color=green4>293</font></b>(<b><font color=green4>2"
              "</font></b>)\n"
              "= Temperature (K): <b><font color=green4>293.2</font></b>(<b><font color=green4>2"
              "</font></b>)\n"
              "< Color: red\n> Color: \n");
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(run("compare a.cif b.cif --tolerance 0.5 --fields 'Temperature (K)'").status, 0);
    EXPECT_EQ(run("compare a.cif b.cif --fields 'Temperature (K)'").status, 1);
    EXPECT_EQ(run("compare a.cif none.cif").status, 2);
    const std::string page = run("compare a.cif b.cif --to html5" + fields).out;
    EXPECT_THAT(page,
                HasSubstr("<div class=\"pair different\"><p>Color</p><p>red</p><p></p></div>"));
    EXPECT_THAT(page, EndsWith("</html>\n"));
}

TEST_F(Program, NoNameTurnsTheLineItStandsIn) {
    file("a\u202E.cif", "data_a\n_chemical_name_common '\u2067x'\n");
    file("b.cif", "data_b\n_chemical_name_common y\n");
    const std::string files = "compare a\u202E.cif b.cif --fields Synonym --to ";
    EXPECT_EQ(run(files + "unicode").out,
              "a<U+202E>.cif and b.cif: data_a and data_b\n"
              "< Synonym: <U+2067>x\n> Synonym: y\n");
    EXPECT_THAT(
        run(files + "html5").out,
        HasSubstr("<h2><bdi>data_a</bdi> and <bdi>data_b</bdi> "
                  "<small><bdi>a&lt;U+202E&gt;.cif</bdi> and <bdi>b.cif</bdi></small></h2>"));
}

TEST_F(Program, ShowReportsWhatIsNoCifAndShowsTheOthers) {
    file("unclosed.cif", "data_x\n_chemical_name_common 'unclosed\n_cell_length_a 1\n");
    file("binary.cif", std::string("\0\x01\x1B[31m\xFF", 8));
    file("empty.cif", "");
    file("crossing.cif",
         "data_x\n_chemical_name_common '~a^b~c^'\n_chemical_name_systematic x\\d-ok\n");
    const Result done =
        run("show -o page.html miss\xC2\x9Bing\u202E.cif . unclosed.cif binary.cif empty.cif "
            "crossing.cif " +
            data + "/1008935.cif");
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(done.out, "");
    EXPECT_THAT(done.err, StartsWith("lmrtext: miss?ing<U+202E>.cif: No such file or directory\n"
                                     "lmrtext: .: Is a directory\n"
                                     "lmrtext: unclosed.cif:2: not a CIF file: "));
    EXPECT_THAT(done.err, HasSubstr("lmrtext: binary.cif:1: not a CIF file: "));
    EXPECT_THAT(
        done.err,
        EndsWith("lmrtext: empty.cif:1: not a CIF file: expected a data block\n"
                 "crossing.cif:2: data_x: _chemical_name_common: creating an overlapping style "
                 "error in '~a^b~c^'\n"));
    const std::string page = contents(folder_ / "page.html");
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n"));
    EXPECT_THAT(page, HasSubstr("<dd>x\\d-ok</dd>"));
    EXPECT_THAT(page, HasSubstr("<dd>Platinum(IV) oxide - β</dd>"));
    EXPECT_THAT(page, EndsWith("</html>\n"));
    EXPECT_EQ(run("show -o page.html missing.cif empty.cif").status, 1);
    EXPECT_EQ(contents(folder_ / "page.html"), page);
}
