// Many entries: threads that share them, and what is seen of them while they are worked on.
#include "tests/cli/Program.h"

using testing::HasSubstr;

class EntryBatch : public Program {};

TEST_F(EntryBatch, JobsKeepTheOrderOfEntriesAndReports) {
    std::string many;
    for (int i = 0; i < 200; ++i) {
        const char* const factor = i % 7 == 3 ? "low" : "5";
        many += "data_" + std::to_string(i) + "\n_refine_ls_r_factor_gt " + factor +
                "\n_chemical_name_common " + (i % 50 == 9 ? "~a^b~c^" : "acetone") + "\n";
    }
    file("many.cif", many);
    file("broken.cif", "data_x\n_cell_length_a 'q\n");
    for (const char* to : {"json", "html5 -o page.html", "tevo"}) {
        const std::string show = words({"show none.cif many.cif", DATA_FOLDER "/1008935.cif",
                                        "broken.cif many.cif broken.cif --to", to});
        const Result one = run(show);
        const std::string page = contents(folder_ / "page.html");
        EXPECT_EQ(one.status, 1);
        EXPECT_THAT(one.err, HasSubstr("many.cif:599: data_199: _refine_ls_r_factor_gt: "));
        for (const char* jobs : {" -j 2", " -j 7"}) {
            const Result more = run(show + jobs);
            EXPECT_TRUE(more.out == one.out);
            EXPECT_EQ(more.err, one.err);
            EXPECT_TRUE(contents(folder_ / "page.html") == page);
        }
    }
}

TEST_F(EntryBatch, LongWorkTellsTerminalsHowFarItIs) {
    const auto seen = [&](const std::string& option) {
        const std::string show = words({"{ sleep 1.2; echo data_x; } | '" PROGRAM "' show",
                                        "a.cif - none.cif >shown", option});
        return run_in_shell("echo data_a >a.cif; script -qec \"" + show + "\" /dev/null").out;
    };
    const std::string message = "lmrtext: none.cif: No such file or directory\r\n";
    EXPECT_THAT(seen(""), testing::MatchesRegex("2 entries, [12] of 3 files, 2 a second, [01] s "
                                                "left\r +\r" +
                                                message));
    EXPECT_EQ(seen("--no-progress"), message);
}
