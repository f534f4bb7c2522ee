// Where the program writes its files, and what it leaves there.
#include <sys/stat.h>

#include <csignal>

#include "tests/cli/Program.h"

using testing::EndsWith;
using testing::StartsWith;

namespace {

const std::string show = "'" PROGRAM "' show in.cif --to tevo -o ";
const std::string shown = "in.cif: data_in\n    Identifier: in\n";

class Output : public Program {
protected:
    Output() {
        std::filesystem::permissions(folder_, std::filesystem::perms::all);
        file("in.cif", "data_in\n");
    }

    mode_t mode(const std::string& name) const {
        struct stat found {};
        return stat((folder_ / name).c_str(), &found) == 0 ? found.st_mode & 07777 : 0;
    }
    /// What lies in the folder besides the test's own files.
    std::vector<std::string> others() const {
        std::vector<std::string> names;
        for (const auto& file : std::filesystem::directory_iterator(folder_)) {
            const std::string name = file.path().filename();
            if (name != "in" && name != "out" && name != "err" && name != "in.cif") {
                names.push_back(name);
            }
        }
        return names;
    }
};

}  // namespace

TEST_F(Output, WhatNamesADescriptorIsThatDescriptor) {
    const std::pair<const char*, const char*> cases[] = {
        {"/dev/stdout", ">>log"},  {"/dev/fd/1", ">>log"},  {"/proc/self/fd/1", ">>log"},
        {"/dev/stderr", "2>>log"}, {"/dev/fd/7", "7>>log"}, {"link", ">>log"},
    };
    std::filesystem::create_symlink("/dev/stdout", folder_ / "link");
    for (const auto& [path, redirection] : cases) {
        file("log", "before\n");
        EXPECT_EQ(run_in_shell(show + path + ' ' + redirection).err, "") << path;
        EXPECT_EQ(contents(folder_ / "log"), "before\n" + shown) << path;
    }
    EXPECT_EQ(run_in_shell(show + "/dev/fd/9").err, "lmrtext: /dev/fd/9: Bad file descriptor\n");
}

TEST_F(Output, RightsAreKeptButNotThoseThatFilesGive) {
    for (const mode_t before : {04755U, 02775U, 01640U, 0600U}) {
        file("x", "before");
        chmod((folder_ / "x").c_str(), before);
        EXPECT_EQ(run_in_shell(show + "x").err, "");
        EXPECT_EQ(mode("x"), before & 0777);
    }
    EXPECT_EQ(run_in_shell("umask 027; " + show + "new").err, "");
    EXPECT_EQ(mode("new"), 0640U);
    if (geteuid() != 0) GTEST_SKIP() << "only root makes files of others";
    struct stat found {};
    const std::string path = file("theirs", "before");
    ASSERT_EQ(chown(path.c_str(), 65534, 65534), 0);
    chmod(path.c_str(), 04755);
    EXPECT_EQ(run_in_shell(show + "theirs").err, "");
    ASSERT_EQ(stat(path.c_str(), &found), 0);
    EXPECT_EQ(found.st_uid, 65534U);
    EXPECT_EQ(found.st_gid, 65534U);
    EXPECT_EQ(mode("theirs"), 0755U);
    // One who can neither keep the owner nor the group gives no one more than before.
    const std::string other = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    if (run_in_shell(other + "'" PROGRAM "' --version").status != 0) GTEST_SKIP();
    const std::pair<mode_t, mode_t> cases[] = {
        {0644U, 0644U}, {0664U, 0644U}, {0606U, 0600U}, {0466U, 0444U}};
    for (const auto& [before, after] : cases) {
        const std::string ours = file("ours", "before");
        ASSERT_EQ(chown(ours.c_str(), 0, 0), 0);
        chmod(ours.c_str(), before);
        EXPECT_EQ(run_in_shell(other + show + "ours").err, "");
        ASSERT_EQ(stat(ours.c_str(), &found), 0);
        EXPECT_EQ(found.st_uid, 65534U);
        EXPECT_EQ(mode("ours"), after) << std::oct << before;
    }
}

TEST_F(Output, LinksAreFollowedToTheirEnds) {
    std::filesystem::create_directory(folder_ / "folder");
    std::filesystem::create_symlink("folder/b", folder_ / "a");
    std::filesystem::create_symlink("../c", folder_ / "folder/b");
    EXPECT_EQ(run_in_shell(show + "a").err, "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "a"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "folder/b"));
    EXPECT_EQ(contents(folder_ / "c"), shown);
    std::filesystem::create_symlink("circle", folder_ / "circle");
    EXPECT_EQ(run_in_shell(show + "circle").err,
              "lmrtext: circle: Too many levels of symbolic links\n");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "circle"));
}

TEST_F(Output, NamesMayBeAsLongAsTheSystemAllows) {
    for (const std::size_t length : {250U, 255U}) {
        const std::string name(length, 'n');
        for (int times = 0; times < 2; ++times) {
            EXPECT_EQ(run_in_shell(show + name).err, "");
            EXPECT_EQ(contents(folder_ / name), shown);
            if (times == 0) file(name, "before");
        }
    }
    const std::string name(256, 'n');
    EXPECT_EQ(run_in_shell(show + name).err, "lmrtext: " + name + ": File name too long\n");
}

TEST_F(Output, SignalsLeaveNothingBehind) {
    const std::string begin = "mkfifo fifo; exec 3<>fifo; '" PROGRAM "' show - -o ";
    file("old", "before");
    for (const int signal : {SIGHUP, SIGVTALRM, SIGPROF, SIGIO, SIGPWR, SIGSYS, SIGTRAP, SIGABRT,
                             SIGSEGV, SIGSTKFLT, SIGRTMIN, SIGRTMIN + 3, SIGRTMAX}) {
#if defined(__SANITIZE_ADDRESS__)
        if (signal == SIGSEGV) continue;  // the sanitizer's own
#endif
        const Result ended = run_in_shell(
            "ulimit -c 0; " + begin +
            "old <fifo & while ! ls .lmrtext-*; do sleep 0.01; done >/dev/null 2>&1; kill -" +
            std::to_string(signal) +
            " $!; wait $!; code=$?; rm fifo; test $code -gt 128 && echo killed");
        EXPECT_THAT(ended.out, EndsWith("killed\n")) << signal;
        EXPECT_THAT(others(), testing::ElementsAre("old")) << signal;
    }
    // A new file has no name before it is whole: nothing is left even by SIGKILL.
    run_in_shell(begin + "new <fifo & sleep 0.3; kill -KILL $!; wait $!; rm fifo");
    EXPECT_THAT(others(), testing::ElementsAre("old"));
    EXPECT_EQ(contents(folder_ / "old"), "before");
    // One that appears meanwhile is replaced.
    run_in_shell("{ sleep 0.3; echo x >new; echo data_in; } | '" PROGRAM "' show - -o new");
    EXPECT_THAT(contents(folder_ / "new"), StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(others(), testing::UnorderedElementsAre("old", "new"));
}
