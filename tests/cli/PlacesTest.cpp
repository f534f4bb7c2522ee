// Where files are looked for, and how packed ones are read.
#include "tests/cli/Program.h"

using testing::HasSubstr;

namespace {

/// The names of the blocks that have been shown, each with a blank behind it.
std::string blocks(const Result& done) {
    std::istringstream lines(done.out);
    std::string names;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t at = line.find(": data_");
        if (at != std::string::npos) names.append(line, at + 7).push_back(' ');
    }
    return names;
}

class Places : public Program {
protected:
    void SetUp() override {
        std::filesystem::create_directories(folder_ / "top/below");
        std::filesystem::create_directories(folder_ / "none/below");
        for (const char* name : {"b.cif", "a.CIF", "c.txt", ".h.cif", "below/d.cif"}) {
            const std::string path = std::string("top/") + name;
            file(path, "data_" + std::filesystem::path(path).stem().string());
        }
        std::filesystem::create_directory_symlink("..", folder_ / "top/below/up");
        std::filesystem::create_symlink("b.cif", folder_ / "top/same.cif");
    }
};

}  // namespace

TEST_F(Places, FoldersAndListsNameFiles) {
    const struct {
        const char* arguments;
        std::string input;
        const char *blocks, *errors;
    } cases[] = {
        {"top", "", "a b ", ""},
        {"top --recursive", "", "a b d ", ""},
        {"top/b.cif top/same.cif", "", "b b ", ""},
        {"none top/b.cif", "", "b ",
         "lmrtext: no CIF files in none (--recursive looks in its folders too)\n"},
        {"-r none", "", "", "lmrtext: no CIF files in none\n"},
        {"top/c.txt --files-from - none.cif", "top\n\ntop/b.cif", "c a b b ",
         "lmrtext: none.cif: No such file or directory\n"},
        {"-0 --files-from -", std::string("top/b.cif\0top/a.CIF", 19), "b a ", ""},
        {"--files-from list", "", "", "lmrtext: list: No such file or directory\n"},
        {"--files-from -", "\n", "", "lmrtext: <stdin>: names no files\n"},
        {"- --files-from -", "top/b.cif\n", "b ",
         "lmrtext: -: standard input is the list of files\n"},
    };
    for (const auto& [arguments, input, expected, errors] : cases) {
        const Result done = run(std::string("show ") + arguments, input);
        EXPECT_EQ(blocks(done), expected) << arguments;
        EXPECT_EQ(done.err, errors) << arguments;
        EXPECT_EQ(done.status, *errors == '\0' ? 0 : 1) << arguments;
    }
    EXPECT_EQ(run("convert --from plain --to tevo --files-from -", "top/b.cif\ntop\n").err,
              "lmrtext: top: Is a directory\n");
    EXPECT_EQ(run("compare -r top top").status, 0);
    EXPECT_EQ(run("compare top/b.cif top/b.cif").status, 0);
    const Result longer = run("compare top/b.cif top");
    EXPECT_THAT(longer.out, HasSubstr(": only right\n"));
    EXPECT_EQ(longer.status, 1);
}

TEST_F(Places, PackedFilesAreReadAsWhatTheyHold) {
    const std::string made =
        "cd top; (gzip -c b.cif; echo; head -c 99 /dev/zero) >whole.cif.gz; "
        "(printf 'data_x\\n#' | gzip -c; echo data_y | gzip -c; head -c 99 /dev/zero) >two; "
        "gzip -c a.CIF | head -c 15 >cut.cif.gz; cp b.cif no.gz; "
        "(printf 'data_x #'; head -c 99000000 /dev/zero | tr '\\0' ' ') | gzip -9c >bomb";
    const std::pair<const char*, const char*> cases[] = {
        {"two", "x "},
        {"- <two", "x "},
        {"whole.cif.gz", "lmrtext: whole.cif.gz: damaged gzip file\n"},
        {"cut.cif.gz", "lmrtext: cut.cif.gz: gzip file is cut short\n"},
        {"no.gz", "lmrtext: no.gz: is no gzip file\n"},
        {"bomb", "lmrtext: bomb: unpacks to more than 200 times its size\n"},
    };
    run_in_shell(made);
    for (const auto& [arguments, expected] : cases) {
        const Result done = run_in_shell(words({"cd top; '" PROGRAM "' show", arguments}));
        EXPECT_EQ(done.err.empty() ? blocks(done) : done.err, expected);
    }
    EXPECT_EQ(run("convert --from plain --to tevo top/two - top/two", "\x1F\n").out,
              "data_x\n#data_y\n\x1F\ndata_x\n#data_y\n");
}
