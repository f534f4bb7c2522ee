// Files that would cost the program much more than their size.
#include "tests/cli/Program.h"

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

const std::string program = "'" PROGRAM "' ";

// Sanitizers need more room than any limit leaves.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool limits_bind = false;
#else
constexpr bool limits_bind = true;
#endif

class HostileInput : public Program {
protected:
    /// Runs commands beside such a file of so many kilobytes, in so many kilobytes of memory.
    Result run_beside(const std::string& name, unsigned long size, unsigned long memory,
                      const std::string& commands) const {
        const std::string make = "'" HOSTILE_FILES "' . " + std::to_string(size) + ' ' + name;
        const std::string limit = memory > 0 ? "ulimit -v " + std::to_string(memory) + "; " : "";
        return run_in_shell(make + "; " + limit + commands);
    }
};

}  // namespace

TEST_F(HostileInput, EntriesAreShownOneAtATime) {
    if (!limits_bind) GTEST_SKIP();
    for (const char* form : {"tevo", "json"}) {
        const Result done = run_beside("empty_blocks.cif", 1024, 150000,
                                       program + "show empty_blocks.cif --to " + form);
        EXPECT_EQ(done.err, "");
        EXPECT_EQ(done.status, 0);
        EXPECT_GT(done.out.size(), 1U << 20);
    }
}

TEST_F(HostileInput, AFileIsRefusedForItsBeginning) {
    const std::string no_header = ": not a CIF file: expected block header (data_)\n";
    if (limits_bind) {
        const Result sparse = run_beside("sparse.cif", 1024, 150000, program + "show sparse.cif");
        EXPECT_EQ(sparse.err, "lmrtext: sparse.cif:1" + no_header);
    }
    EXPECT_EQ(run_beside("comments.cif", 2048, 0, program + "show comments.cif").err, "");
    file("x.cif", "# one\n" + std::string(3 << 20, '\n') + "loop_\n");
    EXPECT_EQ(run("show x.cif").err, "lmrtext: x.cif:" + std::to_string((3 << 20) + 2) + no_header);
}

TEST_F(HostileInput, MemoryThatEndsCostsOneTextAndThreadsThatAreRefusedCostNone) {
    if (!limits_bind) GTEST_SKIP();
    file("a", "a\n");
    for (const char* jobs : {"-j 1", "-j 3"}) {
        const auto run_limited = [&](const char* command) {
            return run_beside("long_line", 40960, 150000,
                              words({program, command, jobs, "a long_line a"}));
        };
        const Result converted = run_limited("convert --from plain --to tevo");
        EXPECT_THAT(converted.err,
                    testing::MatchesRegex("(lmrtext: long_line|long_line:1): out of memory\n"));
        EXPECT_THAT(converted.out, testing::AnyOf("a\n\na\n", "a\na\n"));
        EXPECT_EQ(converted.status, 1);
        const Result searched = run_limited("search --how exact --term a --matching");
        EXPECT_THAT(searched.err, EndsWith(": out of memory\n"));
        EXPECT_EQ(searched.status, 2);
    }
    // Stacks of threads that are larger than the memory.
    const Result alone = run_beside("lines", 4096, 0,
                                    "ulimit -s 8000000; ulimit -v 1000000; " + program +
                                        "convert --from plain --to tevo lines -j 4 | cmp - lines");
    EXPECT_EQ(alone.err, "");
    EXPECT_EQ(alone.status, 0);
}

TEST_F(HostileInput, NamesOfFilesAreTakenAsTheyAre) {
    const std::pair<const char*, const char*> cases[] = {
        {"'[]'", "data_brackets"}, {"'[x,y]'", "data_list"}, {"'a,b'", "data_comma"},
        {"'%%'", "data_percent"},  {"'{}'", "data_braces"},  {"'\"x\"'", "data_quotes"},
    };
    run_in_shell("'" HOSTILE_FILES "' . 1");
    file("in.cif", "data_in\n");
    for (const auto& [name, block] : cases) {
        const std::string text = block + std::string("\n");
        EXPECT_EQ(run(words({"convert --from plain --to tevo", name})).out, text);
        EXPECT_EQ(run(words({"search --how exact --term a --to tevo", name})).out, text);
        EXPECT_THAT(run(words({"show", name})).out, HasSubstr(text));
        EXPECT_THAT(run(words({"compare --all", name, name})).out, HasSubstr(block));
        const std::string shown = words({program, "show in.cif -o", name, "; cat", name});
        EXPECT_THAT(run_in_shell(shown).out, HasSubstr("<html"));
        const std::string searched =
            words({"echo", name, "|", program, "search --how exact --to slices --term", name});
        EXPECT_THAT(run_in_shell(searched).out, StartsWith("true\t"));
    }
    EXPECT_THAT(run("show -- -x").out, HasSubstr("data_dash\n"));
    EXPECT_EQ(run("show ''").err, "lmrtext: '': No such file or directory\n");
}
