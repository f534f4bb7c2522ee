#include "tests/cli/Program.h"

using testing::HasSubstr;

class TextBatch : public Program {};

TEST_F(TextBatch, RealNamesComeBackUnchanged) {
    std::istringstream rows(contents(DATA_FOLDER "/names.tsv"));
    std::string cif, source, tevo, all_cif, all_tevo;
    while (std::getline(std::getline(std::getline(rows, cif, '\t'), source, '\t'), tevo)) {
        all_cif += cif + "\n";
        all_tevo += tevo + "\n";
    }
    EXPECT_EQ(run("convert --from cif-name --to cif", all_cif).out, all_cif);
    EXPECT_EQ(run("convert --from tevo-name --to tevo", all_tevo).out, all_tevo);
}

TEST_F(TextBatch, ATextThatFailsHoldsItsPlaceAndTheRestGoesOn) {
    file("names", "C~2~\n~a^b~c^\na\\dx\n\xFF\xFE~3~");
    const Result done = run("convert --from cif-name --to tevo none names .");
    EXPECT_EQ(done.out, "C!2$\n\nax\n\xFF\xFE!3$\n");
    EXPECT_EQ(done.err,
              "lmrtext: none: No such file or directory\n"
              "names:2: creating an overlapping style error\n"
              "names:3: warning: Greek code without a letter\n"
              "names:4: note: tevo has no code for '?'\n"
              "lmrtext: .: Is a directory\n");
    EXPECT_EQ(done.status, 1);
}

TEST_F(TextBatch, AFileThatFailsWhileItIsReadLosesNothingElse) {
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

TEST_F(TextBatch, SearchSaysTroubleAndGoesOn) {
    const Result done = run("search --how publication --term '<j>x' none -", "</j><j>\n<v>\n");
    EXPECT_EQ(done.out, "\n&lt;v&gt;\n");
    EXPECT_EQ(done.err,
              "lmrtext: none: No such file or directory\n"
              "<stdin>:1: length of StringSlice error\n");
    EXPECT_EQ(done.status, 2);
    EXPECT_EQ(run("search --how exact --term a >/dev/full", "a\n").status, 2);
}

TEST_F(TextBatch, LongLinesPass) {
    std::string line = "tetrakis(mu!3$-hydroxo)-bis(eta$5!-cyclopentadienyl)-zirconium ";
    while (line.size() < 10000000) line += line;
    EXPECT_EQ(run("convert --from tevo-name --to tevo", line).out, line + "\n");
}

TEST_F(TextBatch, JobsKeepTheOrderOfTextsAndReports) {
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
