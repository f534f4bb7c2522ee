#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

std::string contents(const std::filesystem::path& path) {
    std::ostringstream all;
    all << std::ifstream(path, std::ios::binary).rdbuf();
    return all.str();
}

struct Result {
    int status;
    std::string out, err;
};

/// Runs the program in a folder of its own.
class Program : public testing::Test {
public:
    Program() { std::filesystem::create_directories(folder_); }
    ~Program() override { std::filesystem::remove_all(folder_); }

protected:
    std::string file(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ / name, std::ios::binary) << text;
        return (folder_ / name).string();
    }

    Result run(const std::string& arguments, const std::string& input = "") const {
        const std::string in = file("in", input);
        const std::string command = "cd '" + folder_.string() + "' && { '" PROGRAM "' " + arguments;
        const int status = std::system((command + "; } <in 2>err >out").c_str());
        return {WEXITSTATUS(status), contents(folder_ / "out"), contents(folder_ / "err")};
    }

    std::filesystem::path folder_ = std::filesystem::temp_directory_path() /
                                    ("lmrtext_program_test_" + std::to_string(getpid()));
};

const std::string data = DATA_FOLDER;

}  // namespace

TEST_F(Program, ConvertsEachTextToEachTarget) {
    const std::string text = "alpha-D-gluco!2$-kappa$2!N\n";
    const struct {
        const char* target;
        std::string output;
    } cases[] = {
        {"tevo", text},
        {"cif", "\\a-D-gluco~2~-\\k^2^N\n"},
        {"html",
         "<font face=symbol>a</font>-D-gluco<sub>2</sub>-<font "
         "face=symbol>k</font><sup>2</sup>N<p>\n"},
        {"qt",
         "<font face=symbol>a</font>-D-gluco<sub>2</sub>-<font "
         "face=symbol>k</font><sup>2</sup>N\n"},
        {"html5", "α-D-gluco<sub>2</sub>-κ<sup>2</sup>N\n"},
    };
    for (const auto& c : cases) {
        const Result done = run(std::string("convert --from tevo-name --to ") + c.target, text);
        EXPECT_EQ(done.out, c.output) << c.target;
        EXPECT_EQ(done.status, 0) << done.err;
    }
    EXPECT_EQ(run("convert --from plain --to html5", "<alpha>").out, "&lt;alpha&gt;\n");
}

TEST_F(Program, RealNamesComeBackUnchanged) {
    std::istringstream rows(contents(data + "/names.tsv"));
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

TEST_F(Program, NulEndsTextsThatHoldLineFeeds) {
    const std::string texts("abcd\0e\nf\0", 9);
    const Result done = run("convert -0 --from plain --to cif --line-length 2", texts);
    EXPECT_EQ(done.out, std::string("ab\ncd\n\0e\n\nf\0", 12));
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
        {"--how exact --term b --to qt", "a\n", "a\n", 1},
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
    const Result done = run("search --how publication --term x none -", "</j><j>\n<v>\n");
    EXPECT_EQ(done.out, "\n&lt;v&gt;\n");
    EXPECT_EQ(done.err,
              "lmrtext: none: No such file or directory\n"
              "<stdin>:1: length of StringSlice error\n");
    EXPECT_EQ(done.status, 2);
    const Result length =
        run("search --how substring --term abc --min-length 0 --matching", "abd\n");
    EXPECT_EQ(length.err, "<stdin>:1: invalid min_match_length in CommonSubstringFinder::search\n");
    EXPECT_EQ(length.out, "");
    EXPECT_EQ(length.status, 2);
    EXPECT_EQ(run("search --how exact --term a >/dev/full", "a\n").status, 2);
}

TEST_F(Program, LongLinesPass) {
    std::string line = "tetrakis(mu!3$-hydroxo)-bis(eta$5!-cyclopentadienyl)-zirconium ";
    while (line.size() < 10000000) line += line;
    EXPECT_EQ(run("convert --from tevo-name --to tevo", line).out, line + "\n");
}

TEST_F(Program, WrongUsageIsOneLineAndStatusTwo) {
    for (const char* arguments :
         {"", "convert", "convert --from x --to html",
          "convert --from plain --to qt --line-length -1",
          "convert --from plain --to qt --line-length 4294967295", "show",
          "show --to html -o p.html x", "nonsense", "search --how exact", "search --how x --term a",
          "search --how exact --term a --to tevo", "search --how numeric --term 1 --tolerance x",
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

TEST_F(Program, SaysWhatItIsAndHowItIsUsed) {
    EXPECT_THAT(run("--version").out, MatchesRegex("lmrtext [0-9.]+\n"));
    EXPECT_THAT(run("--help").out, HasSubstr("convert"));
    EXPECT_THAT(run("convert --help").out, HasSubstr("cif-name"));
}

TEST_F(Program, OutputThatCannotBeWrittenIsReported) {
    const Result full = run("convert --from plain --to tevo >/dev/full; echo $? >status", "a\n");
    EXPECT_EQ(full.err, "lmrtext: standard output: No space left on device\n");
    EXPECT_EQ(contents(folder_ / "status"), "1\n");
    const Result page = run("show -o nowhere/page.html " + data + "/1008935.cif");
    EXPECT_EQ(page.err, "lmrtext: nowhere/page.html: No such file or directory\n");
    EXPECT_EQ(page.status, 1);
    // A reader that has seen enough is none.
    const std::string many(1000000, '\n');
    EXPECT_EQ(run("convert --from plain --to tevo | head -1; true", many).err, "");
    std::signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(run("convert --from plain --to tevo | head -1; true", many).err, "");
    std::signal(SIGPIPE, SIG_DFL);
}

TEST_F(Program, ShowPrintsNamesAndTitles) {
    const Result done = run("show --to html5 " + data + "/2013971.cif " + data + "/1008935.cif");
    EXPECT_EQ(done.status, 0);
    EXPECT_EQ(done.err, "");
    EXPECT_THAT(done.out,
                HasSubstr("data_2013971\n    Compound Name: "
                          "Tris{bis[hydrotris(1-pyrazolyl)borato-κ<sup>2</sup>N,N']iron(III)} "
                          "hexaisothiocyanatoiron(III)\n    Title: Tris{bis["));
    EXPECT_THAT(done.out,
                EndsWith("data_1008935\n    Compound Name: Platinum(IV) oxide - β\n    Title: "
                         "Formation and stability of the platinum and rhodium oxides at high "
                         "oxygen pressures and the structures of Pt<sub>3</sub>O<sub>4</sub>, "
                         "β-PtO<sub>2</sub> and RhO<sub>2</sub>\n"));
}

TEST_F(Program, ShowReadsTextFieldsAsOneLine) {
    file("x.cif",
         "data_a\n_chemical_name_systematic\n;\n poly-\n \\m~2~-oxo\n-iron \n\n;\n"
         "_chemical_name_common ?\n_chemical_name_mineral\n;\n ? \n;\n"
         "data_b\n_publ_section_title\n;\\\nalpha-\\\n\\k~2~ b\\\nc\nd\n;\n"
         "loop_\n_chemical_name_common\n'one' two .\n");
    const Result done = run("show --to tevo x.cif");
    EXPECT_EQ(done.out,
              "x.cif: data_a\n    Compound Name: poly-mu!2$-oxo-iron\n"
              "x.cif: data_b\n    Synonym: one\n    Synonym: two\n"
              "    Title: alpha-kappa!2$ bc d\n");
}

TEST_F(Program, ShowReportsWhatIsNoCifAndShowsTheOthers) {
    file("unclosed.cif", "data_x\n_chemical_name_common 'unclosed\n_cell_length_a 1\n");
    file("binary.cif", std::string("\0\x01\x1B[31m\xFF", 8));
    file("empty.cif", "");
    file("crossing.cif", "data_x\n_chemical_name_common '~a^b~c^'\n_chemical_name_systematic ok\n");
    const Result done =
        run("show -o page.html missing.cif . unclosed.cif binary.cif empty.cif crossing.cif " +
            data + "/1008935.cif");
    EXPECT_EQ(done.status, 1);
    EXPECT_EQ(done.out, "");
    EXPECT_THAT(done.err, StartsWith("lmrtext: missing.cif: No such file or directory\n"
                                     "lmrtext: .: Is a directory\n"
                                     "lmrtext: unclosed.cif:2: no CIF: "));
    EXPECT_THAT(done.err, HasSubstr("lmrtext: binary.cif:1: no CIF: "));
    EXPECT_THAT(done.err,
                EndsWith("lmrtext: empty.cif:1: no CIF: expected a data block\n"
                         "crossing.cif:2: Synonym: creating an overlapping style error\n"));
    const std::string page = contents(folder_ / "page.html");
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>\n"));
    EXPECT_THAT(page, HasSubstr("<dd>ok</dd>"));
    EXPECT_THAT(page, HasSubstr("<dd>Platinum(IV) oxide - β</dd>"));
    EXPECT_THAT(page, EndsWith("</html>\n"));
}
